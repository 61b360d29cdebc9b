// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files that were dropped: the part of the desk that looks into them.

#include <QCoreApplication>
#include <algorithm>

#include "app/desk.h"
#include "app/scoped.h"
#include "pipeline/likeness.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Desk)
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

void Desk::AddFiles(const QStringList& paths) {
    if (Busy() || paths.isEmpty()) {
        return;
    }
    RecordArray<ImageRecord> images;
    AddedFiles added;
    {
        const Raised busy(busy_);
        view_.ShowHourglass(true);
        added = AppendFilesOrSources(images, paths, photos_);
        view_.ShowHourglass(false);
    }
    const int line = added.like > 0 ? state_.Images.UpperBound() + added.like - 1 : 0;
    for (ImageRecord& image : images) {
        state_.Images.Append(std::move(image));
    }
    NoteStep(added.like > 0 ? StepKind::DroppedSettings : StepKind::Add);
    view_.ShowList(state_.Images, line);
    TellLines(notices_, Texts::tr("Could not find the photo that a picture was made of"),
              added.missing);
    TellLines(notices_, Texts::tr("Some settings of a picture could not be used"), added.notes);
}

}  // namespace varnel
