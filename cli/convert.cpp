// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert.h"

#include <QFileInfo>

#include "cli/choose_gear.h"
#include "cli/convert_file.h"
#include "cli/lists.h"
#include "cli/progress_bar.h"

namespace varnel {

namespace {

std::string Local(const QString& text) {
    return text.toLocal8Bit().toStdString();
}

int Usage(const Console& console, const QString& text) {
    console.err << "varnel-convert: " << Local(text) << "\n";
    return exitUsage;
}

void Report(const Console& console, const QString& file, const QString& reason) {
    console.err << "varnel-convert: " << Local(file) << ": " << Local(reason) << "\n";
}

// Every projection of one photo; true when all were written from a sound picture.
bool ConvertOne(const ConversionRun& run, const QString& path, const Console& console) {
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
        } else if (!run.options.quiet) {
            console.out << Local(written.file) << std::endl;
        }
    }
    return allWritten;
}

int ConvertAll(const Options& options, SettingsStore& store, const Console& console) {
    if (!options.outputDir.isEmpty() && !QFileInfo(options.outputDir).isDir()) {
        return Usage(console, QStringLiteral("%1: there is no such folder").arg(options.outputDir));
    }
    const auto gear = ChooseGear(options, store);
    if (const auto* error = std::get_if<QString>(&gear)) {
        return Usage(console, *error);
    }
    const GeneralSettings settings = LoadSettings(store);
    TerminalBar bar(console.err);
    SilentProgress silent;
    RenderProgress* progress = &silent;
    if (console.bar && !options.quiet) {
        progress = &bar;
    }
    const ConversionRun run{options, std::get<GearRecord>(gear), settings, *progress};
    bool allWritten = true;
    for (const QString& path : options.files) {
        bar.SetLabel(path);
        allWritten = ConvertOne(run, path, console) && allWritten;
    }
    return allWritten ? exitAllWritten : exitSomeFailed;
}

int Show(const Console& console, const QString& text) {
    console.out << Local(text) << std::flush;
    return exitAllWritten;
}

}  // namespace

int RunConvert(const QStringList& arguments, SettingsStore& store, const Console& console) {
    const auto parsed = ParseOptions(arguments);
    if (const auto* error = std::get_if<QString>(&parsed)) {
        return Usage(console, *error);
    }
    const Options& options = std::get<Options>(parsed);
    switch (options.command) {
        case Command::Help:
            return Show(console, HelpText());
        case Command::Version:
            return Show(console, QStringLiteral("varnel-convert " VARNEL_VERSION "\n"));
        case Command::ListCameras:
        case Command::ListLenses:
        case Command::ListGears:
            break;
        case Command::Convert:
            return ConvertAll(options, store, console);
    }
    const auto list = ListFor(options, store);
    if (const auto* error = std::get_if<QString>(&list)) {
        return Usage(console, *error);
    }
    return Show(console, std::get<QStringList>(list).join(u'\n') + u'\n');
}

}  // namespace varnel
