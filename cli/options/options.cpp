// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/options.h"

#include <QFileInfo>
#include <array>
#include <tuple>

#include "cli/options/frame_options.h"
#include "cli/options/nearest.h"
#include "cli/options/option_checks.h"
#include "cli/options/option_list.h"
#include "cli/options/option_values.h"
#include "cli/options/run_options.h"
#include "pipeline/conversion/morph_sequence.h"
#include "remap/image/image_library.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/record_fields.h"

namespace varnel {

namespace {

QString UnknownOption(const QString& argument) {
    const QString given = argument.section(u'=', 0, 0);
    const QString text = QStringLiteral("unknown option \"%1\"").arg(given);
    if (QFileInfo::exists(argument)) {
        return text + QStringLiteral("; write ./%1 for the file of that name").arg(argument);
    }
    const QString near = Nearest(given.mid(given.startsWith(u"--") ? 2 : 1), OptionNames());
    return AskIfMeant(text, near.isEmpty() ? QString() : QStringLiteral("--") + near,
                      QStringLiteral("--help shows all"));
}

// Whether the option takes the next argument as its value. Throws when the name is wrong or the
// value is missing.
bool TakesNext(const QString& argument, const QString* next) {
    const OptionRow* const option =
        FindOption(argument.startsWith(u"--") ? argument.mid(2).section(u'=', 0, 0) : QString());
    if (option == nullptr) {
        throw UsageError{UnknownOption(argument)};
    }
    const bool hasValue = argument.contains(u'=');
    if (option->value == nullptr && hasValue) {
        throw UsageError{
            QStringLiteral("--%1 takes no value; leave %2 out")
                .arg(OptionText(option->name), argument.section(u'=', 1).prepend(u'='))};
    }
    if (option->value == nullptr || hasValue) {
        return false;
    }
    const bool optionFollows =
        next != nullptr && next->startsWith(u"--") && FindOption(next->mid(2).section(u'=', 0, 0));
    if (next == nullptr || optionFollows) {
        throw UsageError{QStringLiteral("--%1 needs a value; give --%1 %2")
                             .arg(OptionText(option->name), OptionText(option->value))};
    }
    return true;
}

// The parser's own words name neither what is near nor what is missing. "-h" becomes "--help".
QStringList Checked(QStringList arguments) {
    for (qsizetype n = 1; n < arguments.size(); ++n) {
        QString& argument = arguments[n];
        if (argument == u"--") {
            break;
        }
        if (argument == u"-h") {
            argument = QStringLiteral("--help");
        }
        if (argument.size() > 1 && argument.startsWith(u'-') &&
            TakesNext(argument, n + 1 < arguments.size() ? &arguments[n + 1] : nullptr)) {
            ++n;
        }
    }
    return arguments;
}

Command CommandOf(const QCommandLineParser& parser) {
    const std::array commands{
        std::pair{u"help", Command::Help},
        std::pair{u"version", Command::Version},
        std::pair{u"list-cameras", Command::ListCameras},
        std::pair{u"list-lenses", Command::ListLenses},
        std::pair{u"list-gears", Command::ListGears},
        std::pair{u"list-presets", Command::ListPresets},
        std::pair{u"import-lens", Command::ImportLens},
        std::pair{u"export-lens", Command::ExportLens},
        std::pair{u"measure-lens", Command::MeasureLens},
        std::pair{u"stitch", Command::Stitch},
    };
    for (const auto& [name, command] : commands) {
        if (parser.isSet(OptionText(name))) {
            return command;
        }
    }
    return Command::Convert;
}

template <class Value, class Read>
void TakeIfSet(const QCommandLineParser& parser, const char16_t* name, Value& value, Read read) {
    if (parser.isSet(OptionText(name))) {
        value = read(parser.value(OptionText(name)));
    }
}

void CheckRange(const NumberOption& option, const QString& text, float value) {
    if (option.range && !(value >= option.range->first && value <= option.range->second)) {
        throw UsageError{QStringLiteral("--%1 needs a number from %2 to %3, not \"%4\"")
                             .arg(OptionText(option.name))
                             .arg(static_cast<double>(option.range->first))
                             .arg(static_cast<double>(option.range->second))
                             .arg(text)};
    }
}

void TakeNumbers(const QCommandLineParser& parser, Options& options) {
    for (const NumberOption& option : NumberOptions()) {
        const QString name = OptionText(option.name);
        if (!parser.isSet(name)) {
            continue;
        }
        const float value = NumberOf(name, parser.value(name));
        CheckRange(option, parser.value(name), value);
        for (const char16_t* field : option.fields) {
            if (field != nullptr) {
                options.adjustments.push_back({OptionText(field), value});
            }
        }
    }
}

// In front of what --set gives, which has the last word.
void TakeWords(const QCommandLineParser& parser, Options& options) {
    for (const WordOption& option : WordOptions()) {
        const QString name = OptionText(option.name);
        if (!parser.isSet(name)) {
            continue;
        }
        const QString words = OptionText(option.words);
        const QString value = words.isEmpty() ? QStringLiteral("True") : parser.value(name);
        ImageRecord probe;
        if (SetField(probe, OptionText(option.field), value) != FieldResult::Ok) {
            throw UsageError{QStringLiteral("--%1 needs %2, not \"%3\"").arg(name, words, value)};
        }
        options.fields.emplace_back(OptionText(option.field), value);
    }
}

void TakeCircle(const QCommandLineParser& parser, Options& options) {
    const bool byPhoto = IsAutomatic(options.gear) || HasOnlyLens(options);
    options.circle = byPhoto ? CircleUse::Found : CircleUse::Off;
    if (const QString option = QStringLiteral("circle"); parser.isSet(option)) {
        std::tie(options.circle, options.givenCircle) = CircleOfOption(parser.value(option));
    }
}

void TakeFrame(const QCommandLineParser& parser, FrameWish& frame) {
    if (const QString size = QStringLiteral("size"); parser.isSet(size)) {
        TakeSize(parser.value(size), frame);
    }
    if (const QString crop = QStringLiteral("crop"); parser.isSet(crop)) {
        TakeCrop(parser.value(crop), frame);
    }
    TakeIfSet(parser, u"aspect", frame.aspect, &AspectOf);
    TakeIfSet(parser, u"outside", frame.outside, &OutsideOf);
    CheckTogether(frame);
}

// --set has the last word.
void TakeFields(const QCommandLineParser& parser, Options& options) {
    if (const QString faces = QStringLiteral("faces"); parser.isSet(faces)) {
        options.fields.emplace_back(QStringLiteral("Faces"),
                                    FacesOf(parser.values(faces).join(u';')));
    }
    if (parser.isSet(QStringLiteral("marks"))) {
        options.fields.emplace_back(QStringLiteral("Marks"), QStringLiteral("True"));
    }
    for (const QString& text : parser.values(QStringLiteral("set"))) {
        options.fields.push_back(FieldOf(text));
    }
}

void TakeRaw(const QCommandLineParser& parser, Options& options) {
    TakeIfSet(parser, u"raw-jpeg", options.rawJpeg, &RawJpegOf);
    TakeIfSet(parser, u"raw-profile", options.raw.profile, &RawProfileOf);
    options.raw.isQuick = parser.isSet(QStringLiteral("raw-quick"));
}

void TakeEncoding(const QCommandLineParser& parser, Options& options) {
    TakeIfSet(parser, u"quality", options.quality, [](const QString& text) {
        return WholeBetween(QStringLiteral("quality"), text, 1, 100);
    });
    TakeIfSet(parser, u"chroma", options.chroma444, &IsChroma444);
    TakeIfSet(parser, u"depth", options.depth, &DepthOf);
    TakeIfSet(parser, u"tiff", options.compression, &CompressionOf);
    TakeIfSet(parser, u"compression", options.level, [](const QString& text) {
        return WholeBetween(QStringLiteral("compression"), text, 1, OutputEncoding::mostLevel);
    });
}

Options Take(const QCommandLineParser& parser) {
    Options options;
    options.command = CommandOf(parser);
    for (const QString& file : parser.positionalArguments()) {
        options.files.append(FileNameOf({}, file));
    }
    TakeIfSet(parser, u"projection", options.projections, &ProjectionsOf);
    options.projectionGiven = parser.isSet(QStringLiteral("projection"));
    options.preset = parser.value(QStringLiteral("preset"));
    options.like = FileNameOf(QStringLiteral("like"), parser.value(QStringLiteral("like")));
    options.gear = parser.value(QStringLiteral("gear"));
    options.lensFile =
        parser.value(options.command == Command::ImportLens ? QStringLiteral("import-lens")
                                                            : QStringLiteral("lens-file"));
    TakeIfSet(parser, u"camera", options.camera,
              [](const QString& text) { return CatalogueNameOf(QStringLiteral("camera"), text); });
    TakeIfSet(parser, u"lens", options.lens,
              [](const QString& text) { return CatalogueNameOf(QStringLiteral("lens"), text); });
    TakeCircle(parser, options);
    options.measureLens =
        FileNameOf(QStringLiteral("output"), parser.value(QStringLiteral("measure-lens")));
    options.exportLens =
        FileNameOf(QStringLiteral("output"), parser.value(QStringLiteral("export-lens")));
    options.straighten = parser.isSet(QStringLiteral("straighten"));
    options.fringes = parser.isSet(QStringLiteral("fringes"));
    TakeIfSet(parser, u"focal", options.focal, &FocalLengthOf);
    TakeNumbers(parser, options);
    TakeWords(parser, options);
    TakeFields(parser, options);
    TakeIfSet(parser, u"morph", options.morph, &FrameCountOf);
    options.from = MorphEndOf(QStringLiteral("from"), parser.values(QStringLiteral("from")));
    options.to = MorphEndOf(QStringLiteral("to"), parser.values(QStringLiteral("to")));
    TakeFrame(parser, options.frame);
    TakeIfSet(parser, u"preview", options.preview, &PreviewBoxOf);
    options.antialiased = parser.isSet(QStringLiteral("antialiased"));
    options.output = FileNameOf(QStringLiteral("output"), parser.value(QStringLiteral("output")));
    options.outputDir = parser.value(QStringLiteral("output-dir"));
    options.keepEnding = parser.isSet(QStringLiteral("keep-ending"));
    TakeIfSet(parser, u"name", options.namePattern, &PatternOf);
    TakeTypes(parser.values(QStringLiteral("type")), options);
    TakeFilm(parser, options.film);
    TakeEncoding(parser, options);
    TakeRaw(parser, options);
    options.noMetadata = parser.isSet(QStringLiteral("no-metadata"));
    options.planar = parser.isSet(QStringLiteral("planar"));
    options.noAutoOrient = parser.isSet(QStringLiteral("no-auto-orient"));
    options.noSettings = parser.isSet(QStringLiteral("no-settings"));
    TakeRun(parser, options);
    return options;
}

// The projection of the sequence; --set has the last word there too.
Projection MorphProjection(const Options& options) {
    ImageRecord probe;
    probe.Projection = static_cast<std::int16_t>(options.projections.front());
    for (const auto& [field, value] : options.fields) {
        SetField(probe, field, value);
    }
    return ProjectionFromIndex(probe.Projection);
}

void CheckMorphEnds(const Options& options) {
    MorphValues probe;
    for (const auto* end : {&options.from, &options.to}) {
        for (const Adjustment& adjustment : *end) {
            if (MorphValue(probe, MorphProjection(options), adjustment.field) == nullptr) {
                throw UsageError{
                    QStringLiteral("%1 is not an effect of the projection %2; leave it out or "
                                   "choose another --projection")
                        .arg(adjustment.field, ToText(MorphProjection(options)))};
            }
        }
    }
}

void CheckMorph(const Options& options) {
    if (!options.morph) {
        if (!options.from.empty() || !options.to.empty()) {
            throw UsageError{
                QStringLiteral("--from and --to need --morph N, the number of frames")};
        }
        return;
    }
    if (options.projections.size() > 1) {
        throw UsageError{
            QStringLiteral("--morph takes one projection; give --projection NAME other than all")};
    }
    if (!options.output.isEmpty()) {
        throw UsageError{QStringLiteral(
            "--morph names its files itself; use --output-dir DIR instead of --output")};
    }
    if ((options.like.isEmpty() && options.preset.isEmpty()) || options.projectionGiven) {
        CheckMorphEnds(options);
    }
}

// Another type's contents under a picture's name would mislead; names that stand for no type may
// hold any.
bool IsOtherPictureName(const QString& name) {
    return !OutputTypeByEnding(name) && IsPictureName(name);
}

void CheckTogether(const Options& options) {
    CheckCommand(options);
    const bool stitches = options.command == Command::Stitch;
    if (options.command != Command::Convert && !stitches) {
        return;
    }
    if (options.files.isEmpty() && options.like.isEmpty()) {
        throw UsageError{QStringLiteral(
            "no photo given; give the names of photos or --like PICTURE (--help shows all)")};
    }
    if (options.camera.has_value() != options.lens.has_value()) {
        const auto [given, other] =
            options.camera ? std::pair{u"camera", u"lens"} : std::pair{u"lens", u"camera"};
        throw UsageError{QStringLiteral("--%1 goes with --%2; give --%2 BRAND/MODEL too")
                             .arg(OptionText(given), OptionText(other))};
    }
    if (options.camera && !options.gear.isEmpty()) {
        throw UsageError{QStringLiteral(
            "--gear and --camera with --lens exclude each other; give one of the two")};
    }
    if (!options.output.isEmpty() && !options.outputDir.isEmpty()) {
        throw UsageError{
            QStringLiteral("--output and --output-dir exclude each other; give one of the two")};
    }
    if (!options.output.isEmpty() &&
        ((options.files.size() > 1 && !stitches) || options.projections.size() > 1)) {
        throw UsageError{
            QStringLiteral("--output takes one photo and one projection; use "
                           "--output-dir for more")};
    }
    if (!options.output.isEmpty() && options.keepEnding) {
        throw UsageError{
            QStringLiteral("--output is the whole name of the file; leave --keep-ending out")};
    }
    if (!options.output.isEmpty() && !options.namePattern.isEmpty()) {
        throw UsageError{
            QStringLiteral("--output is the whole name of the file; leave --name out")};
    }
    if (!options.type && IsOtherPictureName(options.output)) {
        throw UsageError{
            QStringLiteral("--output %1: no pictures of this type are written; end the "
                           "name in %2, or give --type")
                .arg(options.output, WrittenEndings())};
    }
    CheckOlderFiles(options);
    CheckMorph(options);
    CheckFilm(options);
}

}  // namespace

bool IsInShard(const Options& options, qsizetype index) {
    return !options.shard || index % options.shard->count == options.shard->number - 1;
}

bool HasOnlyLens(const Options& options) {
    return !options.lensFile.isEmpty() && options.gear.isEmpty() && !options.camera;
}

bool IsAutomatic(const QString& gear) {
    return gear == autoGear || gear == guessGear;
}

std::variant<Options, QString> ParseOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    DeclareOptions(parser);
    try {
        if (!parser.parse(Checked(arguments))) {
            return parser.errorText();
        }
        Options options = Take(parser);
        CheckTogether(options);
        if (options.command == Command::Stitch) {
            options.projections = {Projection::Equirectangular};
        }
        return options;
    } catch (const UsageError& error) {
        return error.text;
    }
}

std::optional<QString> UseProjection(Options& options, Projection projection) {
    options.projections = {projection};
    try {
        CheckMorphEnds(options);
        return std::nullopt;
    } catch (const UsageError& error) {
        return error.text;
    }
}

}  // namespace varnel
