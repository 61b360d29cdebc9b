// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/measure_command.h"

#include <QFileInfo>
#include <algorithm>

#include "base/error_text.h"
#include "cli/own_lenses.h"
#include "cli/report/json_line.h"
#include "cli/straighten_photo.h"
#include "cli/until_stopped.h"
#include "gear/lens/lens_file.h"
#include "pipeline/photos/jpeg_colour.h"

namespace varnel {

namespace {

QString Figure(double value, int digits = 2) {
    return QString::number(value, 'f', digits);
}

// What is known of the lens before it is measured, on the first photo.
struct Start {
    MeasureOptions options;
    QString error;
};

Start StartFor(const Options& given, SettingsStore& store, const LoadedPicture& photo) {
    Options options = given;
    options.straighten = false;
    if (options.gear.isEmpty() && !options.camera && options.lensFile.isEmpty()) {
        options.gear = guessGear;
    }
    if (options.circle == CircleUse::Off) {
        options.circle = CircleUse::Found;
    }
    const auto gears = ChooseGear(options, store);
    if (const auto* error = std::get_if<QString>(&gears)) {
        return {{}, *error};
    }
    const GearChoice& choice = std::get<GearChoice>(gears);
    const auto gear = GearFor(choice, photo.bitmap->metadata.photo.origin);
    if (const auto* error = std::get_if<QString>(&gear)) {
        return {{}, *error};
    }
    const GeneralSettings settings;
    const StartedRecord started = StartRecord(
        {options, choice, settings}, options.files.front(), {photo.size, photo.orientation},
        std::get<std::optional<GearRecord>>(gear), photo.bitmap.get());
    MeasureOptions measure = MeasureOptionsFor(options, started, photo.size);
    measure.lensName = QFileInfo(options.measureLens).completeBaseName();
    if (measure.focalMillimetres && !measure.pixelsPerMillimetre) {
        return {{},
                QStringLiteral("--focal is of no use without the size of the sensor, which is not "
                               "known; give --camera and --lens too")};
    }
    return {std::move(measure), {}};
}

QString ErrorOf(const Measurement& measured) {
    switch (measured.error) {
        case MeasureError::None:
            return measured.solved->improved
                       ? QString()
                       : QStringLiteral(
                             "the edges tell of no better lens than the one that is "
                             "known; nothing is written");
        case MeasureError::Stopped:
        case MeasureError::NoPhoto:
            return QStringLiteral("no photo was read; nothing is written");
        case MeasureError::SizesDiffer:
            return QStringLiteral(
                "the photos have not one size; give photos of one camera at one "
                "setting, held alike");
        case MeasureError::TooFewEdges:
            return QStringLiteral(
                "too few straight edges were found; take a photo of a room or of "
                "buildings, with long edges all over the picture");
    }
    return {};
}

qsizetype Used(const SolvedLens& solved) {
    return std::ranges::count(solved.edges, true, &EdgeResult::used);
}

QString Described(const Measurement& measured, const Options& options) {
    const SolvedLens& solved = *measured.solved;
    QString text =
        QStringLiteral(
            "edges: %1 found, %2 used\n"
            "held-out edges: %3 px before, %4 px after (root mean square)\n"
            "curve: two numbers and %5 further terms\n"
            "expected bend: %6 px, in a view 110 degrees across with 24 megapixels\n"
            "expected error of angles: %7 degrees%8\n")
            .arg(measured.edges.size())
            .arg(Used(solved))
            .arg(Figure(solved.heldOutBefore), Figure(solved.heldOutAfter))
            .arg(solved.terms)
            .arg(Figure(solved.expectedBend, 1), Figure(solved.angleErrorDegrees, 1),
                 solved.anglesFixed ? QString()
                 : options.focal    ? QStringLiteral("; angles not fixed")
                                    : QStringLiteral("; angles not fixed, --focal MM fixes them"));
    if (measured.colour) {
        text +=
            QStringLiteral(
                "colour at the outermost edges: red %1 +- %2 px, blue %3 +- %4 px against "
                "green%5\n")
                .arg(Figure(measured.colour->red.atRim), Figure(measured.colour->red.deviation),
                     Figure(measured.colour->blue.atRim), Figure(measured.colour->blue.deviation),
                     std::ranges::any_of(options.files, HasHalvedColour)
                         ? QStringLiteral(" (too small by up to 0.5 px: the JPEG file has "
                                          "colours at half its resolution)")
                         : QString());
    }
    return text;
}

QString DescribedAsJson(const Measurement& measured, const Options& options) {
    const SolvedLens& solved = *measured.solved;
    const auto colour = [&](ColourEstimate ColourEstimates::*which) {
        return measured.colour ? QJsonValue(((*measured.colour).*which).atRim) : QJsonValue();
    };
    return QString::fromUtf8(JsonLine({{u"lens_file", options.measureLens},
                                       {u"edges", static_cast<qint64>(measured.edges.size())},
                                       {u"edges_used", static_cast<qint64>(Used(solved))},
                                       {u"held_out_before_px", solved.heldOutBefore},
                                       {u"held_out_after_px", solved.heldOutAfter},
                                       {u"further_terms", solved.terms},
                                       {u"expected_bend_px", solved.expectedBend},
                                       {u"expected_angle_error_degrees", solved.angleErrorDegrees},
                                       {u"angles_fixed", solved.anglesFixed},
                                       {u"red_px", colour(&ColourEstimates::red)},
                                       {u"blue_px", colour(&ColourEstimates::blue)}})) +
           u'\n';
}

int Fail(const Console& console, const QString& text) {
    Complain(console, text);
    return exitSomeFailed;
}

int Measure(const std::vector<LoadedPicture>& pictures, const Options& options,
            const MeasureOptions& measure, const Console& console) {
    std::vector<MeasuredPhoto> photos;
    for (std::size_t n = 0; n < pictures.size(); ++n) {
        photos.push_back({pictures[n].bitmap.get(),
                          QFileInfo(options.files[static_cast<qsizetype>(n)]).fileName()});
    }
    const Measurement measured = MeasureLens(photos, measure);
    if (measured.error == MeasureError::Stopped) {
        return exitStopped + console.StopSignal();
    }
    if (measured.solved && !options.quiet) {
        Show(console,
             options.json ? DescribedAsJson(measured, options) : Described(measured, options));
    }
    if (const QString error = ErrorOf(measured); !error.isEmpty()) {
        return Fail(console, error);
    }
    if (const WriteResult written = WriteLensFile(options.measureLens, measured.lens); !written) {
        return Fail(console,
                    options.measureLens + QStringLiteral(": ") + ErrorText(written.reason));
    }
    return options.quiet || options.json ? exitAllWritten
                                         : Show(console, options.measureLens + u'\n');
}

}  // namespace

int RunMeasureLens(const Options& given, SettingsStore& store, const Console& console) {
    Options options = given;
    if (const QString error = TakeLensFile(options); !error.isEmpty()) {
        return Fail(console, error);
    }
    if (QFileInfo::exists(options.measureLens) && !options.force) {
        return Fail(console,
                    options.measureLens + QStringLiteral(": the file exists; --force replaces it"));
    }
    const std::unique_ptr<PictureReader> reader = console.TakeReader();
    UntilStopped wait(console);
    PhotoLoader loader(*reader, &wait);
    std::vector<LoadedPicture> pictures;
    for (const QString& file : options.files) {
        pictures.push_back(loader.Load(file));
        if (console.StopSignal() != 0) {
            return exitStopped + console.StopSignal();
        }
        if (pictures.back().outcome != LoadOutcome::Loaded) {
            return Fail(console, file + QStringLiteral(": ") + ErrorText(pictures.back().reason));
        }
    }
    Start start = StartFor(options, store, pictures.front());
    if (!start.error.isEmpty()) {
        return Fail(console, options.files.front() + QStringLiteral(": ") + start.error);
    }
    start.options.stop = StopCheck([&console] { return console.StopSignal() != 0; });
    return Measure(pictures, options, start.options, console);
}

}  // namespace varnel
