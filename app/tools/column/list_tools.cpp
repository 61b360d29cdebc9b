// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/list_tools.h"

#include <QSet>

#include "app/panels/photo_list.h"
#include "base/error_text.h"
#include "remap/display/paint.h"
#include "state/editing/list_badges.h"

namespace varnel {

namespace {

constexpr int afterInput = 400;           // ms for the photo that was clicked alone
constexpr qsizetype mostPictures = 5000;  // are kept: about 25 MB

}  // namespace

ListTools::ListTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
                     const WorkingState& state, NewSmallReader newReader, QObject* parent)
    : QObject(parent),
      list_(*parts.list->List()),
      view_(view),
      workspace_(workspace),
      state_(state),
      newReader_(std::move(newReader)),
      previews_(list_, *this, PhotoList::pathRole) {
    refresh_.setSingleShot(true);
    resume_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &ListTools::ShowMarks);
    connect(&resume_, &QTimer::timeout, this, [this] { previews_.Start(); });
    connect(list_.model(), &QAbstractItemModel::rowsInserted, this, [this] {
        refilled_ = true;
        Refresh();
    });
    connect(qobject_cast<PhotoList*>(&list_), &PhotoList::MoveWanted, this,
            [this](int target) { workspace_.list.MoveSelected(target); });
    connect(&workspace_.model.steps, &ListSteps::Changed, this, [this] { Refresh(); });
    connect(&workspace_.model.activity, &Activity::Idle, this, [this] { NoteLoaded(); });
    list_.installEventFilter(this);
    list_.viewport()->installEventFilter(this);
}

ListTools::~ListTools() {
    ListTools::Cancel();
}

bool ListTools::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) {
        previews_.Stop();
        resume_.start(afterInput);
    }
    return QObject::eventFilter(watched, event);
}

void ListTools::Begin(const QString& path) {
    if (!reader_) {
        reader_ = newReader_();
    }
    underWay_ = path;
    const QSize box = list_.iconSize() * list_.devicePixelRatioF();
    reader_->Begin(
        {path, ReadKind::Small, {box.width(), box.height()}, state_.settings.AutoOrient});
}

std::optional<QImage> ListTools::Take() {
    if (!reader_->Wait(0)) {
        return std::nullopt;
    }
    const LoadedPicture picture = reader_->Take();
    if (!picture.reason.isEmpty()) {
        errors_.insert(underWay_, ErrorText(picture.reason));
        Refresh();
    }
    if (picture.outcome == LoadOutcome::NotLoaded) {
        return QImage();
    }
    QImage image = ImageOf(picture.bitmap.get());
    image.setDevicePixelRatio(list_.devicePixelRatioF());
    if (pictures_.size() >= mostPictures) {
        pictures_.clear();
    }
    pictures_.insert(underWay_, QPixmap::fromImage(image));
    return image;
}

void ListTools::Cancel() {
    if (reader_) {
        reader_->Cancel();
    }
}

// What is wrong with the photo on the workspace, now that nothing is read any more.
void ListTools::NoteLoaded() {
    const QString path = workspace_.model.list.CurrentPath();
    if (path.isEmpty() || workspace_.photo.LoadError().Is(ReasonCode::Cancelled)) {
        return;
    }
    if (!view_.Error().isEmpty()) {
        errors_.insert(path, view_.Error());
    } else if (state_.bitmaps.FullSourceBitmap) {
        errors_.remove(path);
    }
    Refresh();
}

void ListTools::ShowMarks() {
    if (list_.count() != state_.Images.UpperBound()) {
        return;  // about to be filled
    }
    QSet<QString> queued;
    for (const ImageRecord& image : state_.BatchQueue) {
        queued.insert(SourcePath(image));
    }
    for (int line = 0; line < list_.count(); ++line) {
        QListWidgetItem* const item = list_.item(line);
        const ImageRecord& image = state_.Images(line + 1);
        const QString path = SourcePath(image);
        const auto [letters, words] =
            MarksOf(image, queued.contains(path),
                    errors_.value(path, ErrorText(workspace_.photo.Unreadable(path))));
        const QString tip = path + u'\n' + words;
        if (item->toolTip() != tip) {
            item->setData(PhotoList::marksRole, letters);
            item->setToolTip(tip);
            item->setData(Qt::AccessibleTextRole, image.FileName + QStringLiteral(", ") + words);
        }
    }
    if (std::exchange(refilled_, false)) {
        ShowPictures();
    }
}

void ListTools::ShowPictures() {
    for (int line = 0; line < list_.count(); ++line) {
        QListWidgetItem* const item = list_.item(line);
        const auto known = pictures_.constFind(item->data(PhotoList::pathRole).toString());
        if (known != pictures_.constEnd()) {
            item->setIcon(*known);
            IdlePreviews::MarkDone(*item);
        }
    }
    if (newReader_ != nullptr) {
        previews_.Stop();
        resume_.start(afterInput);
    }
}

}  // namespace varnel
