// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The command line of varnel-convert. Throws std::bad_alloc only.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "base/pixel_size.h"
#include "cli/options/film_options.h"
#include "decoder/request/read_request.h"
#include "pipeline/output/frame_wish.h"
#include "pipeline/photos/raw_pairs.h"
#include "remap/analysis/circle_finder.h"
#include "remap/encode/output_type.h"
#include "state/records/image_record.h"
#include "state/records/projection.h"

namespace varnel {

enum class Command {
    Convert,
    Stitch,
    MeasureLens,
    ListCameras,
    ListLenses,
    ListGears,
    ListPresets,
    ImportLens,
    ExportLens,
    Help,
    Version
};

// The part before the first slash and the rest of BRAND/MODEL.
struct CatalogueName {
    QString brand;
    QString model;
};

// A number that goes into one field of the image record, or into both effect fields.
struct Adjustment {
    QString field;
    float value = 0.0F;
};

// The image circle on the photos: left to the gear, looked for, or given.
enum class CircleUse { Off, Found, Given };

// One of several runs that share the photos out.
struct Shard {
    int number = 1;  // from 1 to count
    int count = 1;
};

// Names of --gear that stand for a gear of each photo's own.
bool IsAutomatic(const QString& gear);
inline constexpr QLatin1StringView autoGear("auto");
inline constexpr QLatin1StringView guessGear("guess");

struct Options {
    Command command = Command::Convert;
    QStringList files;  // for the lists: the brand, if one was given
    std::vector<Projection> projections{Projection::Varnel};
    bool projectionGiven = false;
    QString preset;                         // its name, built in or the user's
    QString like;                           // a picture that holds settings
    std::optional<ImageRecord> likeRecord;  // what it holds, once it was read
    QString gear;
    CircleUse circle = CircleUse::Off;  // on by default where each photo gets a gear of its own
    ImageCircle givenCircle;
    QString lensFile;     // a lens, or of --import-lens, where they are
    LensReference curve;  // what it holds, once it was read
    QString exportLens;   // the file to write a lens to
    std::optional<CatalogueName> camera;
    std::optional<CatalogueName> lens;
    QString measureLens;          // the file to write a measured lens to
    bool straighten = false;      // each photo's lens is measured from the photo
    bool fringes = false;         // measures colour fringes as well
    std::optional<double> focal;  // of the measured lens, millimetres
    std::vector<Adjustment> adjustments;
    std::vector<std::pair<QString, QString>> fields;  // of --set
    std::optional<int> morph;                         // frames of a sequence, at least 2
    std::vector<Adjustment> from, to;                 // its ends where they are not the photo's own
    FrameWish frame;  // size, shape and crop of the results and what stands outside the photo
    std::optional<PixelSize> preview;
    bool antialiased = false;
    QString output;
    QString outputDir;
    bool keepEnding = false;
    QString namePattern;  // of the results; empty: the usual names
    std::optional<OutputType> type;
    std::optional<int> quality;
    std::optional<bool> chroma444;
    std::optional<OutputDepth> depth;
    std::optional<TiffCompression> compression;  // of TIFF files
    std::optional<int> level;                    // of compression, 1 to 9
    RawJpeg rawJpeg = RawJpeg::Both;             // of photos that are there as raw file and as JPEG
    RawDevelopment raw;
    QSet<QString> paired;  // files whose results keep the ending for that
    FilmOptions film;
    bool noMetadata = false;
    bool noAutoOrient = false;
    bool planar = false;  // less memory
    bool noSettings = false;
    bool force = false;
    bool skipExisting = false;
    bool keepBoth = false;            // a result whose name a file has gets a number
    bool prefersDefaultGear = false;  // to a guess, where the photo does not speak against it
    std::optional<int> jobs;          // cores to use; none: all
    std::optional<Shard> shard;       // of the photos, and of the films by themselves; none: all
    bool quiet = false;
    bool advises = true;  // errors name the options that help; off for a program without them
    bool json = false;    // what is reported of each result goes to out as JSON, all else to err
};

// Whether the shard has the file of that number, from 0 on, among the photos or the films.
bool IsInShard(const Options& options, qsizetype index);

// A lens from a file, and no gear for its camera.
bool HasOnlyLens(const Options& options);

// The options, or one line that says what is wrong with the command line. The first argument is the
// program's name. Numbers have a decimal point whatever the locale.
std::variant<Options, QString> ParseOptions(const QStringList& arguments);

// For a projection that is known only later: one line that says what does not go with it.
std::optional<QString> UseProjection(Options& options, Projection projection);

}  // namespace varnel
