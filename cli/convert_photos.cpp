// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert_photos.h"

#include <QFileInfo>

#include "cli/convert_file.h"
#include "cli/progress_bar.h"

namespace varnel {

namespace {

void Report(const Console& console, const QString& file, const QString& reason) {
    Complain(console, file + QStringLiteral(": ") + reason);
}

// Every projection of one photo; true when all were written from a sound picture.
bool ConvertOne(ConversionRun& run, const QString& path, const Console& console) {
    LoadedPicture loaded = LoadPicture(path);
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
        const Written written = ConvertPhoto(run, photo, projection);
        if (!written.reason.isEmpty()) {
            Report(console, written.file, written.reason);
            allWritten = false;
            continue;
        }
        run.written.append(QFileInfo(written.file).canonicalFilePath());
        if (!run.options.quiet) {
            console.out << LocalText(written.file) << std::endl;
        }
    }
    return allWritten;
}

}  // namespace

int ConvertPhotos(const Options& options, const GearRecord& gear, const GeneralSettings& settings,
                  const Console& console) {
    TerminalBar bar(console.err);
    SilentProgress silent;
    RenderProgress* progress = &silent;
    if (console.bar && !options.quiet) {
        progress = &bar;
    }
    ConversionRun run{options, gear, settings, *progress};
    bool allWritten = true;
    for (const QString& path : options.files) {
        bar.SetLabel(path);
        allWritten = ConvertOne(run, path, console) && allWritten;
    }
    return allWritten ? exitAllWritten : exitSomeFailed;
}

}  // namespace varnel
