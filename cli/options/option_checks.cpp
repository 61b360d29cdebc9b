// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/option_checks.h"

#include <array>
#include <utility>

#include "cli/options/option_list.h"
#include "cli/options/option_values.h"

namespace varnel {

namespace {

void CheckMeasuring(const Options& options) {
    constexpr qsizetype mostPhotos = 4;
    const bool measures = options.command == Command::MeasureLens;
    if ((options.focal || options.fringes) && !measures && !options.straighten) {
        throw UsageError{
            QStringLiteral("--%1 goes with --measure-lens or --straighten; leave it out")
                .arg(options.focal ? QStringLiteral("focal") : QStringLiteral("fringes"))};
    }
    if (measures && (options.files.isEmpty() || options.files.size() > mostPhotos)) {
        throw UsageError{QStringLiteral("--measure-lens takes one to four photos, not %1")
                             .arg(options.files.size())};
    }
}

void CheckStitching(const Options& options) {
    if (options.command != Command::Stitch) {
        return;
    }
    constexpr qsizetype mostPhotos = 2;
    if (options.files.isEmpty() || options.files.size() > mostPhotos) {
        throw UsageError{
            QStringLiteral("--stitch takes one photo with two circles or two photos, not %1")
                .arg(options.files.size())};
    }
    const std::array others{
        std::pair{u"projection", options.projectionGiven},
        std::pair{u"like", !options.like.isEmpty()},
        std::pair{u"morph", options.morph.has_value()},
        std::pair{u"preview", options.preview.has_value()},
        std::pair{u"straighten", options.straighten},
        std::pair{u"aspect", options.frame.aspect.has_value()},
        std::pair{u"crop", options.frame.crop || options.frame.clean},
        std::pair{u"outside", options.frame.outside.has_value()},
    };
    for (const auto& [name, given] : others) {
        if (given) {
            throw UsageError{QStringLiteral("--%1 does not go with --stitch; leave it out")
                                 .arg(OptionText(name))};
        }
    }
    if (options.frame.size.height > 0 &&
        options.frame.size.width != 2 * options.frame.size.height) {
        throw UsageError{
            QStringLiteral("--size: --stitch gives pictures twice as wide as high; "
                           "give the width alone")};
    }
}

void CheckExporting(const Options& options) {
    if (options.command == Command::ExportLens &&
        options.lens.has_value() == !options.lensFile.isEmpty()) {
        throw UsageError{QStringLiteral(
            "--export-lens needs the lens; give --lens \"My lenses/NAME\" or --lens-file FILE")};
    }
}

// Of options that make one film of many pictures.
void CheckStills(const Options& options) {
    const FilmOptions& film = options.film;
    if (film.output.isEmpty()) {
        return;
    }
    const std::array others{
        std::pair{u"output", !options.output.isEmpty()},
        std::pair{u"output-dir", !options.outputDir.isEmpty()},
        std::pair{u"name", !options.namePattern.isEmpty()},
        std::pair{u"stitch", options.command == Command::Stitch},
        std::pair{u"from-time", film.from > 0.0},
        std::pair{u"to-time", film.to.has_value()},
        std::pair{u"keys", !film.keysFile.isEmpty()},
    };
    for (const auto& [name, given] : others) {
        if (given) {
            throw UsageError{QStringLiteral("--%1 does not go with --film FILE; leave it out")
                                 .arg(OptionText(name))};
        }
    }
    if (options.projections.size() > 1 || (options.morph && options.files.size() > 1)) {
        throw UsageError{QStringLiteral("--film is one film; give one %1")
                             .arg(options.morph ? QStringLiteral("photo for --morph")
                                                : QStringLiteral("projection"))};
    }
    if (!ContainerOf(film, film.output)) {
        throw UsageError{QStringLiteral("--film %1: films are written as .mp4, .mkv or .mov; end "
                                        "the name so, or give --type")
                             .arg(film.output)};
    }
}

// Of what makes one result of all photos, or none.
void CheckShard(const Options& options) {
    if (!options.shard) {
        return;
    }
    const std::array others{
        std::pair{u"output", !options.output.isEmpty()},
        std::pair{u"film", !options.film.output.isEmpty()},
        std::pair{u"stitch", options.command == Command::Stitch},
        std::pair{u"measure-lens", options.command == Command::MeasureLens},
    };
    for (const auto& [name, given] : others) {
        if (given) {
            throw UsageError{
                QStringLiteral("--shard shares many photos out and does not go with --%1; leave "
                               "one of them out")
                    .arg(OptionText(name))};
        }
    }
}

// Kinds of TIFF that have no levels.
void CheckCompression(const Options& options) {
    const auto kind = options.compression.value_or(TiffCompression::Usual);
    if (options.level && (kind == TiffCompression::Lzw || kind == TiffCompression::None)) {
        throw UsageError{
            QStringLiteral("--compression does not go with --tiff %1; leave one of them out, or "
                           "give --tiff deflate or zstd")
                .arg(ToText(kind))};
    }
}

}  // namespace

void CheckFilm(const Options& options) {
    const FilmOptions& film = options.film;
    CheckStills(options);
    if (film.to && *film.to <= film.from) {
        throw UsageError{QStringLiteral("--to-time has to be behind --from-time")};
    }
    if (film.rateGiven && film.output.isEmpty()) {
        throw UsageError{QStringLiteral("--fps goes with --film FILE; give that too")};
    }
    if (film.frame && (film.from > 0.0 || film.to || !film.keysFile.isEmpty())) {
        throw UsageError{
            QStringLiteral("--frame is one picture; leave --from-time, --to-time and --keys out")};
    }
}

void CheckCommand(const Options& options) {
    CheckMeasuring(options);
    CheckExporting(options);
    CheckStitching(options);
    CheckCompression(options);
    CheckShard(options);
}

void CheckOlderFiles(const Options& options) {
    if (options.skipExisting && options.force) {
        throw UsageError{
            QStringLiteral("--skip-existing and --force exclude each other; give one of the two")};
    }
    if (options.keepBoth && (options.force || options.skipExisting || options.shard ||
                             !options.film.output.isEmpty())) {
        throw UsageError{
            QStringLiteral("--keep-both gives free names; leave --force, --skip-existing, --shard "
                           "and --film out")};
    }
}

}  // namespace varnel
