// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files that were dropped: the part of the workspace that looks into them.

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <algorithm>

#include "app/workspace/workspace.h"
#include "base/error_text.h"
#include "pipeline/photos/add_images.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Workspace)
};

void TellLines(Notices& notices, const QString& text, QStringList lines) {
    constexpr qsizetype mostLines = 10;
    if (lines.isEmpty()) {
        return;
    }
    if (lines.size() > mostLines) {
        lines = lines.first(mostLines) + QStringList{QStringLiteral("...")};
    }
    notices.Tell(text, lines.join(u'\n'));
}

}  // namespace

// One by one they would each put up a box when their line becomes current.
void Workspace::NoteBad(const std::vector<BadFile>& bad) {
    for (const BadFile& file : bad) {
        unreadable_.insert(file.path, file.reason);
    }
}

void Workspace::TellBad(const std::vector<BadFile>& bad) {
    QStringList lines;
    for (const BadFile& file : bad) {
        lines.append(QStringLiteral("%1: %2").arg(file.path, ErrorText(file.reason)));
    }
    TellLines(notices_,
              lines.size() == 1
                  ? Texts::tr("Could not open image")
                  : Texts::tr("%1 of the added images could not be opened").arg(lines.size()),
              lines);
}

void Workspace::ImagesAdded(int before) {
    std::vector<BadFile> bad;
    {
        const auto hourglass = view_.Hourglass();
        const QScopedValueRollback busy(busy_, true);
        PhotoLoader::Together together(photos_);
        for (int n = before + 1; n <= state_.Images.UpperBound(); ++n) {
            const QString path = SourcePath(state_.Images(n));
            if (const Reason error = photos_.Error(path); !error.isEmpty()) {
                bad.push_back({path, error});
            }
            if (photos_.GivenUp() || !together.Continue()) {
                break;
            }
        }
    }
    NoteStep(StepKind::Add);
    NoteBad(bad);
    view_.ShowList(state_.Images, 0);
    TellBad(bad);
}

void Workspace::AddFiles(const QStringList& paths) {
    if (Busy() || paths.isEmpty()) {
        return;
    }
    RecordArray<ImageRecord> images;
    DroppedPhotos photos;
    AddedFiles added;
    {
        const auto hourglass = view_.Hourglass();
        const QScopedValueRollback busy(busy_, true);
        PhotoLoader::Together together(photos_);
        photos = PhotosOf(paths, [&] { return together.Continue(); });
        if (photos.givenUp) {
            return;
        }
        added = AppendFilesOrSources(images, photos.files, photos_);
    }
    TellLines(notices_, Texts::tr("There are no photos in a folder"), photos.without);
    if (images.Empty()) {
        return;
    }
    NoteBad(added.bad);
    const int before = state_.Images.UpperBound();
    const int line = added.like.isEmpty() ? 0 : before + added.like.firstKey() - 1;
    for (ImageRecord& image : images) {
        state_.Images.Append(std::move(image));
    }
    NoteStep(added.like.isEmpty() ? StepKind::Add : StepKind::DroppedSettings);
    for (auto made = added.like.cbegin(); made != added.like.cend(); ++made) {
        MarkWritten(state_.Images(before + made.key()), made.value());
    }
    view_.ShowList(state_.Images, line);
    TellLines(notices_, Texts::tr("Could not find the photo that a picture was made of"),
              added.missing);
    TellBad(added.bad);
    if (photos.tooMany) {
        notices_.Tell(Texts::tr("Only the first %1 photos were added").arg(mostDropped), QString());
    }
    TellLines(notices_, Texts::tr("Some settings of a picture could not be used"), added.notes);
}

}  // namespace varnel
