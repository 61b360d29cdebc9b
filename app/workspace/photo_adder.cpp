// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/photo_adder.h"

#include <QCoreApplication>
#include <algorithm>

#include "base/error_text.h"
#include "pipeline/photos/add_images.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Workspace)
};

void ReportLines(Notices& notices, const QString& text, QStringList lines) {
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

void PhotoAdder::Report(const std::vector<BadFile>& bad) {
    QStringList lines;
    for (const BadFile& file : bad) {
        lines.append(QStringLiteral("%1: %2").arg(file.path, ErrorText(file.reason)));
    }
    ReportLines(ports_.notices,
                lines.size() == 1
                    ? Texts::tr("Could not open image")
                    : Texts::tr("%1 of the added images could not be opened").arg(lines.size()),
                lines);
}

// From that one on.
void PhotoAdder::MarkFilms(RecordArray<ImageRecord>& images, int first) const {
    for (int n = first; ports_.films != nullptr && n <= images.UpperBound(); ++n) {
        if (!images(n).Film && ports_.films->IsFilm(SourcePath(images(n)))) {
            images(n).Film.emplace();
        }
    }
}

void PhotoAdder::ImagesAdded(int before) {
    MarkFilms(model_.list.Images(), before + 1);
    std::vector<BadFile> bad;
    {
        const auto hourglass = ports_.view.Hourglass();
        const auto busy = model_.activity.Occupy();
        PhotoLoader::Together together(ports_.photos);
        for (int n = before + 1; n <= model_.list.Images().UpperBound(); ++n) {
            const QString path = SourcePath(model_.list.Images()(n));
            if (const Reason error = ports_.photos.Error(path); !error.isEmpty()) {
                bad.push_back({path, error});
            }
            if (ports_.photos.GivenUp() || !together.Continue()) {
                break;
            }
        }
    }
    model_.steps.Note(StepKind::Add);
    photo_.NoteUnreadable(bad);
    photo_.ShowList(0);
    Report(bad);
    TellAdded(before, bad, {});
}

void PhotoAdder::TellAdded(int before, const std::vector<BadFile>& bad,
                           const QMap<int, QString>& like) {
    QStringList paths;
    for (int n = before + 1; n <= model_.list.Images().UpperBound(); ++n) {
        const QString path = SourcePath(model_.list.Images()(n));
        if (!like.contains(n - before) &&
            std::ranges::find(bad, path, &BadFile::path) == bad.end()) {
            paths.append(path);
        }
    }
    Q_EMIT model_.PhotosAdded(paths);
}

void PhotoAdder::AddFiles(const QStringList& paths) {
    if (model_.activity.Busy() || paths.isEmpty()) {
        return;
    }
    RecordArray<ImageRecord> images;
    DroppedPhotos photos;
    AddedFiles added;
    {
        const auto hourglass = ports_.view.Hourglass();
        const auto busy = model_.activity.Occupy();
        PhotoLoader::Together together(ports_.photos);
        photos = PhotosOf(paths, [&] { return together.Continue(); });
        if (photos.givenUp) {
            return;
        }
        added = AppendFilesOrSources(images, photos.files, ports_.photos);
    }
    ReportLines(ports_.notices, Texts::tr("There are no photos in a folder"), photos.without);
    if (images.Empty()) {
        return;
    }
    MarkFilms(images, 1);
    photo_.NoteUnreadable(added.bad);
    const int before = model_.list.Images().UpperBound();
    const int line = added.like.isEmpty() ? 0 : before + added.like.firstKey() - 1;
    for (ImageRecord& image : images) {
        model_.list.Images().Append(std::move(image));
    }
    model_.steps.Note(added.like.isEmpty() ? StepKind::Add : StepKind::DroppedSettings);
    for (auto made = added.like.cbegin(); made != added.like.cend(); ++made) {
        model_.steps.MarkWritten(model_.list.Images()(before + made.key()), made.value());
    }
    photo_.ShowList(line);
    ReportLines(ports_.notices, Texts::tr("Could not find the photo that a picture was made of"),
                added.missing);
    Report(added.bad);
    if (photos.tooMany) {
        ports_.notices.Tell(Texts::tr("Only the first %1 photos were added").arg(mostDropped),
                            QString());
    }
    ReportLines(ports_.notices, Texts::tr("Some settings of a picture could not be used"),
                added.notes);
    TellAdded(before, added.bad, added.like);
}

}  // namespace varnel
