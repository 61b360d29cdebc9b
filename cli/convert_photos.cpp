// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert_photos.h"

#include <QFileInfo>

#include "cli/convert_file.h"
#include "cli/progress_bar.h"
#include "pipeline/morph_sequence.h"
#include "remap/engine/thread_runner.h"

namespace varnel {

namespace {

void Report(const Console& console, const QString& file, const QString& reason) {
    Complain(console, file + QStringLiteral(": ") + reason);
}

// One conversion; true when it was written.
bool WriteOne(ConversionRun& run, OpenPhoto& photo, const ImageRecord& record,
              const Console& console) {
    const Written written = ConvertPhoto(run, photo, record);
    if (!written.reason.isEmpty()) {
        Report(console, written.file, written.reason);
        return false;
    }
    if (!written.note.isEmpty()) {
        Report(console, written.file, written.note);
    }
    run.written.append(QFileInfo(written.file).canonicalFilePath());
    if (!run.options.quiet) {
        console.out << LocalText(written.file) << std::endl;
    }
    return true;
}

MorphEnds EndsFor(const Options& options, const ImageRecord& record) {
    const Projection projection = ProjectionFromIndex(record.Projection);
    MorphEnds ends = EndsFrom(record);
    for (const Adjustment& from : options.from) {
        *MorphValue(ends.start, projection, from.field) = from.value;
    }
    for (const Adjustment& to : options.to) {
        *MorphValue(ends.end, projection, to.field) = to.value;
    }
    return ends;
}

// The frames that start from the record; true when all were written.
bool WriteMorph(ConversionRun& run, OpenPhoto& photo, const ImageRecord& record,
                const Console& console) {
    const MorphEnds ends = EndsFor(run.options, record);
    const int frames = *run.options.morph;
    bool allWritten = true;
    for (int i = 1; i <= frames; ++i) {
        allWritten =
            WriteOne(run, photo, MorphFrame(record, ends, i, frames), console) && allWritten;
    }
    return allWritten;
}

// Every projection of one photo; true when all were written from a sound picture.
bool ConvertOne(ConversionRun& run, PhotoLoader& photos, const QString& path,
                const Console& console) {
    LoadedPicture loaded = photos.Load(path);
    if (loaded.outcome != LoadOutcome::Loaded) {
        Report(console, path, loaded.reason);
    }
    if (loaded.outcome == LoadOutcome::NotLoaded) {
        return false;
    }
    OpenPhoto photo{path,
                    StartRecord(run, path, loaded.bitmap.get()),
                    {},
                    loaded.outcome == LoadOutcome::Damaged};
    photo.bitmaps.FullSourceBitmap = std::move(loaded.bitmap);
    bool allWritten = !photo.damaged;
    for (const Projection projection : run.options.projections) {
        const ImageRecord record = RecordFor(run, photo, projection);
        allWritten = (run.options.morph ? WriteMorph(run, photo, record, console)
                                        : WriteOne(run, photo, record, console)) &&
                     allWritten;
    }
    return allWritten;
}

}  // namespace

int ConvertPhotos(const Options& options, const GearRecord& gear, const GeneralSettings& settings,
                  const Console& console) {
    const auto reader = NewPictureReader();  // first: it gets ready meanwhile
    PhotoLoader photos(*reader);
    TerminalBar bar(console.err);
    SilentProgress silent;
    RenderProgress* progress = &silent;
    if (console.bar && !options.quiet) {
        progress = &bar;
    }
    ThreadRunner runner;
    ConversionRun run{options, gear, settings, *progress, runner};
    bool allWritten = true;
    for (const QString& path : options.files) {
        bar.SetLabel(path);
        allWritten = ConvertOne(run, photos, path, console) && allWritten;
    }
    return allWritten ? exitAllWritten : exitSomeFailed;
}

}  // namespace varnel
