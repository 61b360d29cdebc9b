// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/list_tools.h"

#include <QSet>

#include "base/error_text.h"
#include "state/editing/list_badges.h"

namespace varnel {

ListTools::ListTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
                     WorkingState& state, const NewSmallReader& newReader, QObject* parent)
    : QObject(parent),
      list_(*parts.list->List()),
      view_(view),
      workspace_(workspace),
      state_(state),
      pictures_(list_, workspace, state, newReader) {
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &ListTools::ShowMarks);
    connect(list_.model(), &QAbstractItemModel::rowsInserted, this, [this] { Refresh(); });
    connect(&list_, &PhotoList::MoveWanted, this,
            [this](int target) { workspace_.list.MoveSelected(target); });
    connect(&workspace_.model.steps, &ListSteps::Changed, this, [this] { Refresh(); });
    connect(&workspace_.model.activity, &Activity::Idle, this, [this] { NoteLoaded(); });
    connect(&pictures_, &ListPictures::PhotoRead, this,
            [this](const QString& path, const Reason& reason) {
                errors_.insert(path, ErrorText(reason));
                Refresh();
            });
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
    pictures_.Follow();
}

}  // namespace varnel
