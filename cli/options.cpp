// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options.h"

#include <QCommandLineParser>
#include <array>
#include <cmath>

#include "pipeline/morph_sequence.h"
#include "state/record_fields.h"

namespace varnel {

namespace {

// What a bad command line throws inside this file; the text is the one line for the user.
struct UsageError {
    QString text;
};

// Options that set numbers of the record.
struct NumberOption {
    const char16_t* name;
    const char16_t* value;
    const char16_t* help;
    std::array<const char16_t*, 2> fields;
};

constexpr std::array numberOptions{
    NumberOption{u"input-aov",
                 u"D",
                 u"Angle of view of the lens across the frame, degrees.",
                 {u"InputAOV", nullptr}},
    NumberOption{
        u"output-aov", u"D", u"Angle of view of the output, degrees.", {u"OutputAOV", nullptr}},
    NumberOption{u"effect",
                 u"P",
                 u"Strength of the projection, percent (0.1 to 100).",
                 {u"EffectVarnel", u"EffectRectilinear"}},
    NumberOption{u"rotate-x",
                 u"D",
                 u"Tilt of the camera, degrees; positive looks down.",
                 {u"RotateX", nullptr}},
    NumberOption{u"rotate-y",
                 u"D",
                 u"Pan of the camera, degrees; positive looks right.",
                 {u"RotateY", nullptr}},
    NumberOption{u"rotate-z",
                 u"D",
                 u"Roll of the camera, degrees; positive is counter-clockwise.",
                 {u"RotateZ", nullptr}},
    NumberOption{u"translate-x",
                 u"P",
                 u"Shift of the picture, percent; positive is right.",
                 {u"TranslateX", nullptr}},
    NumberOption{u"translate-y",
                 u"P",
                 u"Shift of the picture, percent; positive is up.",
                 {u"TranslateY", nullptr}}};

QString Text(const char16_t* text) {
    return QString::fromUtf16(text);
}

QCommandLineOption Flag(const char16_t* name, const char16_t* help) {
    return QCommandLineOption(Text(name), Text(help));
}

QCommandLineOption Valued(const char16_t* name, const char16_t* value, const char16_t* help) {
    return QCommandLineOption(Text(name), Text(help), Text(value));
}

void Declare(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("Converts fisheye photos into other projections."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Photos to convert."),
                                 QStringLiteral("FILE..."));
    parser.addOptions({
        Valued(u"projection", u"NAME",
               u"varnel, rectilinear, equidistance, horizon or all; default varnel."),
        Valued(u"like", u"PICTURE",
               u"Gear, projection and adjustments of a picture that Varnel wrote; other options "
               u"win. Without FILE its own photo is converted."),
        Valued(u"gear", u"NAME",
               u"A gear of the settings, or auto: what each photo's EXIF tells; default: the "
               u"default gear."),
        Valued(u"camera", u"BRAND/MODEL", u"A camera of the catalogue, with --lens."),
        Valued(u"lens", u"BRAND/MODEL", u"A lens of the catalogue, with --camera."),
    });
    for (const NumberOption& option : numberOptions) {
        parser.addOption(Valued(option.name, option.value, option.help));
    }
    parser.addOptions({
        Valued(u"set", u"FIELD=VALUE",
               u"Any field of the image record, after all the rest; may be repeated."),
        Valued(u"morph", u"N", u"A sequence of N frames instead of one picture."),
        Valued(u"from", u"FIELD=VALUE", u"Where the sequence starts; may be repeated."),
        Valued(u"to", u"FIELD=VALUE", u"Where the sequence ends; may be repeated."),
        Valued(u"preview", u"WxH", u"The preview of that size instead of the full picture."),
        Flag(u"antialiased", u"Interpolate the preview."),
        Valued(u"output", u"FILE", u"The file to write."),
        Valued(u"output-dir", u"DIR", u"The folder to write to, under the batch's names."),
        Valued(u"type", u"TYPE",
               u"tiff, jpeg, bmp or png; default: the ending of --output, "
               u"else the setting."),
        Valued(u"quality", u"Q", u"JPEG quality, 1 to 100; default: the setting."),
        Valued(u"chroma", u"C",
               u"444: JPEG with colour at full resolution, 420: at half of it; default: the "
               u"setting."),
        Flag(u"no-metadata", u"Leave the photo's EXIF, IPTC and XMP out."),
        Flag(u"no-auto-orient", u"Take photos as they are stored, whatever their EXIF says."),
        Flag(u"no-settings", u"Do not write the settings into the results."),
        Flag(u"force", u"Replace existing files."),
        Flag(u"skip-existing", u"Do only what is missing: leave results that lie there alone."),
        Valued(u"jobs", u"N", u"How many cores to use, 1 to 256; default: all."),
        Flag(u"list-cameras", u"List the cameras (of a brand) as BRAND/MODEL."),
        Flag(u"list-lenses", u"List the lenses (of a brand) as BRAND/MODEL."),
        Flag(u"list-gears", u"List the gears of the settings."),
        Flag(u"quiet", u"No progress bar and no names of written files."),
        Flag(u"help", u"Show this text."),
        Flag(u"version", u"Show the version."),
    });
}

float NumberOf(const QString& option, const QString& text) {
    bool ok = false;
    const float value = text.toFloat(&ok);
    if (!ok || !std::isfinite(value)) {
        throw UsageError{QStringLiteral("--%1 needs a number, not \"%2\"").arg(option, text)};
    }
    return value;
}

std::vector<Projection> ProjectionsOf(const QString& text) {
    if (text.compare(u"all", Qt::CaseInsensitive) == 0) {
        return {allProjections.begin(), allProjections.end()};
    }
    if (const auto projection = ProjectionFromText(text)) {
        return {*projection};
    }
    throw UsageError{QStringLiteral("unknown projection \"%1\"; there are varnel, rectilinear, "
                                    "equidistance, horizon and all")
                         .arg(text)};
}

CatalogueName CatalogueNameOf(const QString& option, const QString& text) {
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 1 || slash + 1 == text.size()) {
        throw UsageError{QStringLiteral("--%1 needs BRAND/MODEL, not \"%2\"").arg(option, text)};
    }
    return {text.left(slash), text.mid(slash + 1)};
}

PixelSize PreviewBoxOf(const QString& text) {
    const QStringList sides = text.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
    bool widthOk = false;
    bool heightOk = false;
    const PixelSize size{sides.value(0).toInt(&widthOk), sides.value(1).toInt(&heightOk)};
    if (sides.size() != 2 || !widthOk || !heightOk || size.width < 1 || size.height < 1 ||
        size.width > 32767 || size.height > 32767) {
        throw UsageError{
            QStringLiteral("--preview needs WIDTHxHEIGHT in pixels, not \"%1\"").arg(text)};
    }
    return size;
}

OutputType TypeOf(const QString& text) {
    if (const auto type = OutputTypeByName(text)) {
        return *type;
    }
    throw UsageError{
        QStringLiteral("unknown type \"%1\"; there are tiff, jpeg, bmp and png").arg(text)};
}

int WholeBetween(const QString& option, const QString& text, int least, int most) {
    bool ok = false;
    const int number = text.toInt(&ok);
    if (!ok || number < least || number > most) {
        throw UsageError{QStringLiteral("--%1 needs a whole number from %2 to %3, not \"%4\"")
                             .arg(option)
                             .arg(least)
                             .arg(most)
                             .arg(text)};
    }
    return number;
}

bool IsChroma444(const QString& text) {
    if (text != u"444" && text != u"420") {
        throw UsageError{QStringLiteral("--chroma needs 444 or 420, not \"%1\"").arg(text)};
    }
    return text == u"444";
}

// The parts of FIELD=VALUE.
std::pair<QString, QString> PartsOf(const QString& option, const QString& text) {
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 1) {
        throw UsageError{QStringLiteral("--%1 needs FIELD=VALUE, not \"%2\"").arg(option, text)};
    }
    return {text.left(equals), text.mid(equals + 1)};
}

// Tried on an empty record, so that a wrong field or value is told before any photo is read.
std::pair<QString, QString> FieldOf(const QString& text) {
    const auto [field, value] = PartsOf(QStringLiteral("set"), text);
    ImageRecord probe;
    switch (SetField(probe, field, value)) {
        case FieldResult::UnknownField:
            throw UsageError{QStringLiteral("there is no field \"%1\"; the fields are %2")
                                 .arg(field, FieldNames().join(QStringLiteral(", ")))};
        case FieldResult::BadValue:
            throw UsageError{
                QStringLiteral("\"%1\" is no value for the field %2").arg(value, field)};
        case FieldResult::Ok:
            break;
    }
    return {field, value};
}

int FrameCountOf(const QString& text) {
    const auto count = FrameCountFromText(text);
    if (const auto* error = std::get_if<QString>(&count)) {
        throw UsageError{QStringLiteral("--morph: ") + *error};
    }
    if (std::get<int>(count) < 2) {
        throw UsageError{QStringLiteral("--morph needs at least 2 frames, not %1").arg(text)};
    }
    return std::get<int>(count);
}

std::vector<Adjustment> MorphEndOf(const QString& option, const QStringList& texts) {
    std::vector<Adjustment> end;
    for (const QString& text : texts) {
        const auto [field, value] = PartsOf(option, text);
        if (!MorphFields().contains(field)) {
            throw UsageError{QStringLiteral("a sequence cannot move \"%1\"; it can move %2")
                                 .arg(field, MorphFields().join(QStringLiteral(", ")))};
        }
        end.push_back({field, NumberOf(option, value)});
    }
    return end;
}

Command CommandOf(const QCommandLineParser& parser) {
    const std::array commands{
        std::pair{u"help", Command::Help},
        std::pair{u"version", Command::Version},
        std::pair{u"list-cameras", Command::ListCameras},
        std::pair{u"list-lenses", Command::ListLenses},
        std::pair{u"list-gears", Command::ListGears},
    };
    for (const auto& [name, command] : commands) {
        if (parser.isSet(Text(name))) {
            return command;
        }
    }
    return Command::Convert;
}

template <class Value, class Read>
void TakeIfSet(const QCommandLineParser& parser, const char16_t* name, Value& value, Read read) {
    if (parser.isSet(Text(name))) {
        value = read(parser.value(Text(name)));
    }
}

void TakeNumbers(const QCommandLineParser& parser, Options& options) {
    for (const NumberOption& option : numberOptions) {
        const QString name = Text(option.name);
        if (!parser.isSet(name)) {
            continue;
        }
        const float value = NumberOf(name, parser.value(name));
        for (const char16_t* field : option.fields) {
            if (field != nullptr) {
                options.adjustments.push_back({Text(field), value});
            }
        }
    }
}

Options Take(const QCommandLineParser& parser) {
    Options options;
    options.command = CommandOf(parser);
    options.files = parser.positionalArguments();
    TakeIfSet(parser, u"projection", options.projections, &ProjectionsOf);
    options.projectionGiven = parser.isSet(QStringLiteral("projection"));
    options.like = parser.value(QStringLiteral("like"));
    options.gear = parser.value(QStringLiteral("gear"));
    TakeIfSet(parser, u"camera", options.camera,
              [](const QString& text) { return CatalogueNameOf(QStringLiteral("camera"), text); });
    TakeIfSet(parser, u"lens", options.lens,
              [](const QString& text) { return CatalogueNameOf(QStringLiteral("lens"), text); });
    TakeNumbers(parser, options);
    for (const QString& text : parser.values(QStringLiteral("set"))) {
        options.fields.push_back(FieldOf(text));
    }
    TakeIfSet(parser, u"morph", options.morph, &FrameCountOf);
    options.from = MorphEndOf(QStringLiteral("from"), parser.values(QStringLiteral("from")));
    options.to = MorphEndOf(QStringLiteral("to"), parser.values(QStringLiteral("to")));
    TakeIfSet(parser, u"preview", options.preview, &PreviewBoxOf);
    options.antialiased = parser.isSet(QStringLiteral("antialiased"));
    options.output = parser.value(QStringLiteral("output"));
    options.outputDir = parser.value(QStringLiteral("output-dir"));
    TakeIfSet(parser, u"type", options.type, &TypeOf);
    TakeIfSet(parser, u"quality", options.quality, [](const QString& text) {
        return WholeBetween(QStringLiteral("quality"), text, 1, 100);
    });
    TakeIfSet(parser, u"chroma", options.chroma444, &IsChroma444);
    options.noMetadata = parser.isSet(QStringLiteral("no-metadata"));
    options.noAutoOrient = parser.isSet(QStringLiteral("no-auto-orient"));
    options.noSettings = parser.isSet(QStringLiteral("no-settings"));
    options.force = parser.isSet(QStringLiteral("force"));
    options.skipExisting = parser.isSet(QStringLiteral("skip-existing"));
    TakeIfSet(parser, u"jobs", options.jobs, [](const QString& text) {
        return WholeBetween(QStringLiteral("jobs"), text, 1, 256);
    });
    options.quiet = parser.isSet(QStringLiteral("quiet"));
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
                throw UsageError{QStringLiteral("%1 is not an effect of the projection %2")
                                     .arg(adjustment.field, ToText(MorphProjection(options)))};
            }
        }
    }
}

void CheckMorph(const Options& options) {
    if (!options.morph) {
        if (!options.from.empty() || !options.to.empty()) {
            throw UsageError{QStringLiteral("--from and --to need --morph")};
        }
        return;
    }
    if (options.projections.size() > 1) {
        throw UsageError{QStringLiteral("--morph takes one projection")};
    }
    if (!options.output.isEmpty()) {
        throw UsageError{QStringLiteral("--morph names its files itself; use --output-dir")};
    }
    if (options.like.isEmpty() || options.projectionGiven) {
        CheckMorphEnds(options);
    }
}

void CheckTogether(const Options& options) {
    if (options.command != Command::Convert) {
        return;
    }
    if (options.files.isEmpty() && options.like.isEmpty()) {
        throw UsageError{QStringLiteral("no photo given; see --help")};
    }
    if (options.camera.has_value() != options.lens.has_value()) {
        throw UsageError{QStringLiteral("--camera and --lens go together")};
    }
    if (options.camera && !options.gear.isEmpty()) {
        throw UsageError{QStringLiteral("give either --gear or --camera and --lens")};
    }
    if (!options.output.isEmpty() && !options.outputDir.isEmpty()) {
        throw UsageError{QStringLiteral("give either --output or --output-dir")};
    }
    if (!options.output.isEmpty() && (options.files.size() > 1 || options.projections.size() > 1)) {
        throw UsageError{
            QStringLiteral("--output takes one photo and one projection; use "
                           "--output-dir for more")};
    }
    if (options.skipExisting && options.force) {
        throw UsageError{QStringLiteral("give either --skip-existing or --force")};
    }
    CheckMorph(options);
}

}  // namespace

std::variant<Options, QString> ParseOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    Declare(parser);
    if (!parser.parse(arguments)) {
        return parser.errorText();
    }
    try {
        Options options = Take(parser);
        CheckTogether(options);
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

QString HelpText() {
    QCommandLineParser parser;
    Declare(parser);
    return parser.helpText();
}

}  // namespace varnel
