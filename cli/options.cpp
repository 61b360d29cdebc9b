// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options.h"

#include <array>
#include <cmath>

#include "cli/option_list.h"
#include "pipeline/morph_sequence.h"
#include "state/record_fields.h"

namespace varnel {

namespace {

// What a bad command line throws inside this file; the text is the one line for the user.
struct UsageError {
    QString text;
};

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

void TakeNumbers(const QCommandLineParser& parser, Options& options) {
    for (const NumberOption& option : NumberOptions()) {
        const QString name = OptionText(option.name);
        if (!parser.isSet(name)) {
            continue;
        }
        const float value = NumberOf(name, parser.value(name));
        for (const char16_t* field : option.fields) {
            if (field != nullptr) {
                options.adjustments.push_back({OptionText(field), value});
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
    DeclareOptions(parser);
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
    DeclareOptions(parser);
    return parser.helpText();
}

}  // namespace varnel
