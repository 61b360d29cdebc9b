// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert.h"

#include <QFileInfo>
#include <algorithm>

#include "cli/choose_gear.h"
#include "cli/convert_photos.h"
#include "cli/films/films.h"
#include "cli/like_picture.h"
#include "cli/lists.h"
#include "cli/measure_command.h"
#include "cli/options/help_text.h"
#include "cli/options/take_raw_pairs.h"
#include "cli/own_lenses.h"
#include "cli/stitch_photos.h"
#include "cli/take_preset.h"

namespace varnel {

namespace {

// Reported before a photo is read; empty when the folder to write to is there.
QString MissingFolder(const Options& options) {
    const QString folder =
        options.output.isEmpty() ? options.outputDir : QFileInfo(options.output).path();
    if (folder.isEmpty() || QFileInfo(folder).isDir()) {
        return {};
    }
    return QFileInfo::exists(folder)
               ? QStringLiteral("%1: this is no folder; name one").arg(folder)
               : QStringLiteral("%1: there is no such folder; make it first").arg(folder);
}

// Cameras with two lenses are in no catalogue.
void GuessForStitching(Options& options) {
    if (options.command != Command::Stitch) {
        return;
    }
    if (!NamesGear(options) && !HasOnlyLens(options)) {
        options.gear = guessGear;
        options.circle = options.circle == CircleUse::Off ? CircleUse::Found : options.circle;
    }
}

// What does not go with films, in words; empty when all does.
QString FilmError(const Options& options, qsizetype films) {
    if (films > 0 && !options.film.output.isEmpty()) {
        return QStringLiteral("--film makes a film of photos; leave the films out");
    }
    if (films > 0 && options.morph) {
        return QStringLiteral("--morph is for photos; --keys FILE moves the settings of a film");
    }
    if (films > 0 && !options.output.isEmpty() && !ContainerOf(options.film, options.output)) {
        return QStringLiteral(
                   "--output %1: films are written as .mp4, .mkv or .mov; end the name "
                   "so, or give --type")
            .arg(options.output);
    }
    const bool onlyForFilms = options.film.from > 0.0 || options.film.to || options.film.frame ||
                              !options.film.keysFile.isEmpty();
    return films == 0 && onlyForFilms
               ? QStringLiteral(
                     "--from-time, --to-time, --frame and --keys are for films, and "
                     "none is given")
               : QString();
}

// Photos first, then films; frames of films are photos.
int ConvertFiles(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                 const Console& console) {
    Options films = options;
    Options photos = options;
    films.files.removeIf([](const QString& path) { return !IsFilmFile(path); });
    films.files.squeeze();
    const bool asPhotos = options.film.frame.has_value();
    if (const QString error = FilmError(options, films.files.size());
        !error.isEmpty() && !(asPhotos && !films.files.isEmpty())) {
        return Refuse(console, error);
    }
    if (asPhotos || films.files.isEmpty()) {
        return ConvertPhotos(options, gears, settings, console);
    }
    photos.files.removeIf([&](const QString& path) { return films.files.contains(path); });
    const int first =
        photos.files.isEmpty() ? exitAllWritten : ConvertPhotos(photos, gears, settings, console);
    return first > exitStopped ? first
                               : std::max(first, ConvertFilms(films, gears, settings, console));
}

int Convert(Options options, SettingsStore& store, const Console& console) {
    if (const QString missing = MissingFolder(options); !missing.isEmpty()) {
        return Refuse(console, missing);
    }
    GeneralSettings settings = LoadSettings(store);
    if (const QString error = TakePreset(store, options, settings); !error.isEmpty()) {
        return Refuse(console, error);
    }
    const auto notes = TakeLike(options);
    if (const auto* error = std::get_if<QString>(&notes)) {
        return Refuse(console, *error);
    }
    for (const QString& note : std::get<QStringList>(notes)) {
        Complain(console, note);
    }
    if (const QString error = TakeLensFile(options); !error.isEmpty()) {
        return Refuse(console, error);
    }
    if (const QString error = TakeKeys(options.film); !error.isEmpty()) {
        return Refuse(console, error);
    }
    GuessForStitching(options);
    if (const QString note = TakeRawPairs(options); !note.isEmpty()) {
        Complain(console, note);
    }
    const auto gears = options.likeRecord && !NamesGear(options) ? GearChoice{GearRecord(), {}}
                                                                 : ChooseGear(options, store);
    if (const auto* error = std::get_if<QString>(&gears)) {
        return Refuse(console, *error);
    }
    if (options.command == Command::Stitch) {
        return StitchPhotos(options, std::get<GearChoice>(gears), settings, console);
    }
    return ConvertFiles(options, std::get<GearChoice>(gears), settings, console);
}

// What nobody says who clicks on a photo.
void ChooseForMenu(Options& options) {
    if (!NamesGear(options) && !HasOnlyLens(options) && options.like.isEmpty()) {
        options.gear = guessGear;
        options.circle = options.circle == CircleUse::Off ? CircleUse::Found : options.circle;
        options.prefersDefaultGear = true;
    }
    if (!options.projectionGiven && options.like.isEmpty()) {
        options.projections = {Projection::Rectilinear};
    }
    options.keepBoth = !options.force && !options.skipExisting && !options.shard;
    options.advises = false;
}

int Run(std::variant<Options, QString> parsed, SettingsStore& store, const Console& console) {
    if (const auto* error = std::get_if<QString>(&parsed)) {
        return Refuse(console, *error);
    }
    const Options& options = std::get<Options>(parsed);
    switch (options.command) {
        case Command::Help:
            return Show(console, HelpText());
        case Command::Version:
            return Show(console,
                        QStringLiteral("varnel-convert " VARNEL_VERSION "\n" VARNEL_ALSO_READS));
        case Command::MeasureLens:
            return RunMeasureLens(options, store, console);
        case Command::ListCameras:
        case Command::ListLenses:
        case Command::ListGears:
        case Command::ListPresets:
        case Command::ImportLens:
        case Command::ExportLens:
            break;
        case Command::Convert:
        case Command::Stitch:
            return Convert(options, store, console);
    }
    const auto list = options.command == Command::ImportLens   ? ImportOwnLenses(options, store)
                      : options.command == Command::ExportLens ? ExportOwnLens(options, store)
                                                               : ListFor(options, store);
    if (const auto* error = std::get_if<QString>(&list)) {
        return Refuse(console, *error);
    }
    return Show(console, std::get<QStringList>(list).join(u'\n') + u'\n');
}

int Flushed(int exitCode, const Console& console) {
    if (console.out.flush()) {
        return exitCode;
    }
    Complain(console, QStringLiteral("the standard output could not be written"));
    return exitCode == exitAllWritten ? exitSomeFailed : exitCode;
}

}  // namespace

int RunConvert(const QStringList& arguments, SettingsStore& store, const Console& console) {
    return Flushed(Run(ParseOptions(arguments), store, console), console);
}

int RunConvertForMenu(const QStringList& arguments, SettingsStore& store, const Console& console) {
    auto parsed = ParseOptions(arguments);
    if (auto* const options = std::get_if<Options>(&parsed)) {
        if (options->command != Command::Convert || !options->film.output.isEmpty()) {
            return Refuse(console, QStringLiteral("--beside converts photos, each by itself"));
        }
        ChooseForMenu(*options);
    }
    return Flushed(Run(std::move(parsed), store, console), console);
}

}  // namespace varnel
