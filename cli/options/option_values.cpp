// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/option_values.h"

#include <algorithm>
#include <cmath>

#include "cli/options/nearest.h"
#include "cli/options/option_list.h"
#include "pipeline/conversion/morph_sequence.h"
#include "pipeline/output/name_pattern.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/face_text.h"
#include "state/adjustments/record_fields.h"

namespace varnel {

namespace {

// The parts of FIELD=VALUE.
std::pair<QString, QString> PartsOf(const QString& option, const QString& text) {
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 1) {
        throw UsageError{
            QStringLiteral("--%1 needs FIELD=VALUE, not \"%2\"; for example --%1 RotateX=10")
                .arg(option, text)};
    }
    return {text.left(equals), text.mid(equals + 1)};
}

std::vector<Projection> ProjectionsNamed(const QString& text) {
    const QString all = QStringLiteral("all");
    if (text.compare(all, Qt::CaseInsensitive) == 0) {
        return BasicProjections();
    }
    if (const auto projection = ProjectionFromText(text)) {
        return {*projection};
    }
    throw UsageError{AskIfMeant(QStringLiteral("unknown projection \"%1\"").arg(text),
                                Nearest(text, ProjectionKeys() << all),
                                QStringLiteral("use %1 or all").arg(ProjectionNames()))};
}

// What the text stands for, if it is one of the words.
template <class Choice>
Choice OneOf(const QString& option, const QString& text, const std::optional<Choice>& choice,
             QStringList words) {
    if (!choice) {
        const QString last = words.takeLast();
        throw UsageError{QStringLiteral("--%1 needs %2 or %3, not \"%4\"")
                             .arg(option, words.join(QStringLiteral(", ")), last, text)};
    }
    return *choice;
}

QString Joined(const QStringList& names) {
    return names.join(QStringLiteral(", "));
}

}  // namespace

float NumberOf(const QString& option, const QString& text) {
    bool ok = false;
    const float value = text.toFloat(&ok);
    if (ok && std::isfinite(value)) {
        return value;
    }
    const QString point = QString(text).replace(u',', u'.');
    (void)point.toFloat(&ok);
    throw UsageError{QStringLiteral("--%1 needs a number, not \"%2\"; ").arg(option, text) +
                     (ok && point != text ? QStringLiteral("write it with a point: ") + point
                                          : QStringLiteral("give digits like 12.5 or -5"))};
}

std::vector<Projection> ProjectionsOf(const QString& text) {
    std::vector<Projection> projections;
    for (const QString& part : text.split(u',')) {
        for (const Projection projection : ProjectionsNamed(part.trimmed())) {
            if (std::ranges::find(projections, projection) == projections.end()) {
                projections.push_back(projection);
            }
        }
    }
    return projections;
}

CatalogueName CatalogueNameOf(const QString& option, const QString& text) {
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 1 || slash + 1 == text.size()) {
        const bool camera = option == u"camera";
        throw UsageError{
            QStringLiteral("--%1 needs BRAND/MODEL, not \"%2\"; %3 shows them")
                .arg(option, text,
                     camera ? QStringLiteral("--list-cameras") : QStringLiteral("--list-lenses"))};
    }
    return {text.left(slash), text.mid(slash + 1)};
}

std::pair<CircleUse, ImageCircle> CircleOfOption(const QString& text) {
    if (text == u"auto") {
        return {CircleUse::Found, {}};
    }
    if (text == u"off") {
        return {CircleUse::Off, {}};
    }
    constexpr double farthest = 1e6;  // pixels
    const QStringList parts = text.split(u',');
    std::array<double, 3> numbers{};
    bool good = parts.size() == 3;
    for (std::size_t n = 0; good && n < numbers.size(); ++n) {
        numbers[n] = parts[static_cast<qsizetype>(n)].toDouble(&good);
        good = good && std::fabs(numbers[n]) <= farthest;
    }
    if (!good || numbers[2] < 1.0) {
        throw UsageError{QStringLiteral("--circle needs auto, off or X,Y,R in pixels, not \"%1\"; "
                                        "for example --circle 800,800,744")
                             .arg(text)};
    }
    return {CircleUse::Given, {numbers[0], numbers[1], numbers[2]}};
}

double FocalLengthOf(const QString& text) {
    const auto focal = static_cast<double>(NumberOf(QStringLiteral("focal"), text));
    if (!(focal >= 0.5 && focal <= 100.0)) {
        throw UsageError{
            QStringLiteral("--focal needs a fisheye's focal length, 0.5 to 100 mm, not \"%1\"")
                .arg(text)};
    }
    return focal;
}

QString PatternOf(const QString& text) {
    if (const QString error = PatternError(text); !error.isEmpty()) {
        throw UsageError{QStringLiteral("--name: ") + error};
    }
    return text;
}

PixelSize PreviewBoxOf(const QString& text) {
    constexpr int longest = 32767;
    const QStringList sides = text.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
    bool widthOk = false;
    bool heightOk = false;
    const PixelSize size{sides.value(0).toInt(&widthOk), sides.value(1).toInt(&heightOk)};
    if (sides.size() != 2 || !widthOk || !heightOk || size.width < 1 || size.height < 1 ||
        size.width > longest || size.height > longest) {
        throw UsageError{
            QStringLiteral("--preview needs WIDTHxHEIGHT in pixels, not \"%1\"; for example "
                           "--preview 800x600")
                .arg(text)};
    }
    return size;
}

namespace {

// "a, b or c": the text of each type that is written.
QString OneOfAll(QString (*textOf)(OutputType)) {
    QStringList texts;
    for (const OutputType type : AllOutputTypes()) {
        texts.append(textOf(type).toLower());
    }
    const QString last = texts.takeLast();
    return texts.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

}  // namespace

OutputType TypeOf(const QString& text) {
    if (const auto type = OutputTypeByName(text)) {
        return *type;
    }
    if (const auto type = OutputTypeByEnding(u'.' + text)) {
        throw UsageError{
            QStringLiteral("unknown type \"%1\"; use %2").arg(text, ToText(*type).toLower())};
    }
    throw UsageError{QStringLiteral("unknown type \"%1\"; use %2, and mp4, mkv or mov for films")
                         .arg(text, OneOfAll(&ToText))};
}

QString WrittenEndings() {
    return OneOfAll(&ExtensionOf);
}

void TakeTypes(const QStringList& texts, Options& options) {
    for (const QString& text : texts) {
        if (const auto container = FilmContainerFromText(text)) {
            options.film.type = container;
        } else {
            options.type = TypeOf(text);
        }
    }
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

OutputDepth DepthOf(const QString& text) {
    return OneOf(QStringLiteral("depth"), text, OutputDepthFromText(text), OutputDepthTexts());
}

TiffCompression CompressionOf(const QString& text) {
    return OneOf(QStringLiteral("tiff"), text, TiffCompressionFromText(text),
                 TiffCompressionTexts());
}

RawJpeg RawJpegOf(const QString& text) {
    return OneOf(QStringLiteral("raw-jpeg"), text, RawJpegFromText(text), RawJpegTexts());
}

RawProfile RawProfileOf(const QString& text) {
    const QStringList words{QStringLiteral("srgb"), QStringLiteral("adobe-rgb"),
                            QStringLiteral("rec2020")};
    const qsizetype place = words.indexOf(text.toLower());
    return OneOf(QStringLiteral("raw-profile"), text,
                 place < 0 ? std::nullopt : std::optional(static_cast<RawProfile>(place)), words);
}

std::pair<QString, QString> FieldOf(const QString& text) {
    const auto [field, value] = PartsOf(QStringLiteral("set"), text);
    ImageRecord probe;
    switch (SetField(probe, field, value)) {
        case FieldResult::UnknownField:
            throw UsageError{AskIfMeant(
                QStringLiteral("--set: there is no field \"%1\"").arg(field),
                Nearest(field, FieldNames()), QStringLiteral("fields: ") + Joined(FieldNames()))};
        case FieldResult::BadValue:
            throw UsageError{QStringLiteral("--set: \"%1\" is no value for the field %2; fields of "
                                            "numbers take digits, a point, a minus sign")
                                 .arg(value, field)};
        case FieldResult::Ok:
            break;
    }
    return {field, value};
}

QString FacesOf(const QString& text) {
    if (text.isEmpty() || !FacesFromText(text)) {
        throw UsageError{
            QStringLiteral("--faces needs X,Y,WIDTH,HEIGHT in parts of 1, not \"%1\"; for example "
                           "--faces 0.85,0.4,0.15,0.3 or two with a semicolon between them")
                .arg(text)};
    }
    return text;
}

int FrameCountOf(const QString& text) {
    return WholeBetween(QStringLiteral("morph"), text, 2, mostMorphFrames);
}

std::vector<Adjustment> MorphEndOf(const QString& option, const QStringList& texts) {
    std::vector<Adjustment> end;
    for (const QString& text : texts) {
        const auto [field, value] = PartsOf(option, text);
        if (!MorphFields().contains(field)) {
            throw UsageError{
                AskIfMeant(QStringLiteral("--%1: a sequence cannot move \"%2\"").arg(option, field),
                           Nearest(field, MorphFields()),
                           QStringLiteral("it can move ") + Joined(MorphFields()))};
        }
        end.push_back({field, NumberOf(option, value)});
    }
    return end;
}

QString FileNameOf(const QString& option, const QString& text) {
    if (text != u"-") {
        return text;
    }
    const QString given = option.isEmpty() ? text : QStringLiteral("--%1 -").arg(option);
    throw UsageError{
        given +
        (option == u"output"
             ? QStringLiteral(": results do not go to standard output, they are put in place as "
                              "whole files")
             : QStringLiteral(": photos do not come from standard input, because results are named "
                              "after their photos and lead back to them")) +
        QStringLiteral("; give a file's name (./- for one that is called -)")};
}

}  // namespace varnel
