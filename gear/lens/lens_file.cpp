// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/lens_file.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <cmath>

#include "remap/projection/lens_spline.h"

namespace varnel {

namespace {

constexpr int newestVersion = 1;
constexpr int longestSide = 1'000'000;  // pixels; far above what can be decoded
constexpr qsizetype mostPhotos = 100;
constexpr double largestNumber = 1e6;  // in a list

constexpr QLatin1StringView versionKey("varnel_lens_version");
constexpr QLatin1StringView anglesKey("angles_rad");
constexpr QLatin1StringView centreKey("centre");
constexpr QLatin1StringView originKey("origin");

// The texts of enumerators, in their order.
constexpr std::array kindTexts{"published", "imported", "measured"};
constexpr std::array unitEndings{"mm", "circle_radii"};

QString UnitEnding(SampledLens::Unit unit) {
    return QLatin1String(unitEndings[static_cast<std::size_t>(unit)]);
}

// Reads the values of an object and remembers the first key that is of no use.
class Fields {
  public:
    Fields(QJsonObject object, QString path, Reason& error)
        : object_(std::move(object)), path_(std::move(path)), error_(error) {}

    bool Has(const QString& key) const { return object_.contains(key); }

    double Number(const QString& key, double least, double most) {
        const QJsonValue value = object_.value(key);
        const double number = value.toDouble();
        Require(key, value.isDouble() && number >= least && number <= most);
        return number;
    }

    int Whole(const QString& key, int least, int most) {
        const double number = Number(key, least, most);
        Require(key, number == std::floor(number));
        return error_.isEmpty() ? static_cast<int>(number) : least;
    }

    QString Text(const QString& key) {
        Require(key, object_.value(key).isString());
        return object_.value(key).toString();
    }

    QList<double> Numbers(const QString& key, qsizetype count) {
        const QJsonArray array = object_.value(key).toArray();
        Require(key, array.size() == count);
        QList<double> numbers(count, 0.0);
        for (qsizetype n = 0; n < count && error_.isEmpty(); ++n) {
            Require(key, array[n].isDouble() && std::abs(array[n].toDouble()) <= largestNumber);
            numbers[n] = array[n].toDouble();
        }
        return numbers;
    }

    Fields Object(const QString& key) {
        Require(key, object_.value(key).isObject());
        return {object_.value(key).toObject(), path_ + key + u'.', error_};
    }

    void Require(const QString& key, bool good) {
        if (!good && error_.isEmpty()) {
            error_ =
                Reason(Has(key) ? ReasonCode::KeyUnusable : ReasonCode::KeyMissing, path_ + key);
        }
    }

  private:
    QJsonObject object_;
    QString path_;
    Reason& error_;
};

QJsonArray Array(const LensKnots& knots, double LensKnot::*value) {
    QJsonArray array;
    for (const LensKnot& knot : knots) {
        array.append(knot.*value);
    }
    return array;
}

QJsonObject OriginToJson(const LensOrigin& origin) {
    QJsonObject json{
        {QStringLiteral("kind"), QLatin1String(kindTexts[static_cast<std::size_t>(origin.kind)])},
        {QStringLiteral("source"), origin.source}};
    if (origin.date.isValid()) {
        json[QStringLiteral("date")] = origin.date.toString(Qt::ISODate);
    }
    if (!origin.photos.isEmpty()) {
        json[QStringLiteral("photos")] = QJsonArray::fromStringList(origin.photos);
    }
    if (origin.residual) {
        json[QStringLiteral("residual_px")] = *origin.residual;
    }
    return json;
}

LensOrigin OriginFrom(Fields fields, const QJsonArray& photos) {
    LensOrigin origin;
    const QString kind = fields.Text(QStringLiteral("kind"));
    const auto found = std::ranges::find_if(
        kindTexts, [&](const char* text) { return kind == QLatin1String(text); });
    fields.Require(QStringLiteral("kind"), found != kindTexts.end());
    origin.kind = static_cast<LensOrigin::Kind>((found - kindTexts.begin()) % kindTexts.size());
    origin.source = fields.Text(QStringLiteral("source"));
    if (const auto key = QStringLiteral("date"); fields.Has(key)) {
        origin.date = QDate::fromString(fields.Text(key), Qt::ISODate);
        fields.Require(key, origin.date.isValid());
    }
    fields.Require(QStringLiteral("photos"), photos.size() <= mostPhotos);
    for (const auto& photo : photos) {
        fields.Require(QStringLiteral("photos"), photo.isString());
        origin.photos.append(photo.toString());
    }
    if (const auto key = QStringLiteral("residual_px"); fields.Has(key)) {
        origin.residual = fields.Number(key, 0.0, longestSide);
    }
    return origin;
}

LensCentre CentreFrom(Fields fields) {
    LensCentre centre;
    centre.size.width = fields.Whole(QStringLiteral("picture_width_px"), 1, longestSide);
    centre.size.height = fields.Whole(QStringLiteral("picture_height_px"), 1, longestSide);
    centre.x = fields.Number(QStringLiteral("from_left_px"), -longestSide, longestSide);
    centre.y = fields.Number(QStringLiteral("from_bottom_px"), -longestSide, longestSide);
    return centre;
}

void ReadColour(Fields& fields, const QString& key, std::optional<ColourShift>& colour) {
    if (fields.Has(key)) {
        const QList<double> powers = fields.Numbers(key, 3);
        colour = {powers[0], powers[1], powers[2]};
    }
}

void ReadCurve(Fields& fields, SampledLens& lens) {
    lens.unit = fields.Has(QStringLiteral("radii_mm")) ? SampledLens::Unit::Millimetres
                                                       : SampledLens::Unit::CircleRadii;
    const QString ending = UnitEnding(lens.unit);
    const QList<double> angles = fields.Numbers(anglesKey, lensKnots);
    const QList<double> radii = fields.Numbers(QStringLiteral("radii_") + ending, lensKnots);
    for (int n = 0; n < lensKnots; ++n) {
        lens.knots[static_cast<std::size_t>(n)] = {angles[n], radii[n]};
    }
    ReadColour(fields, QStringLiteral("red_shift_") + ending, lens.red);
    ReadColour(fields, QStringLiteral("blue_shift_") + ending, lens.blue);
    if (const auto key = QStringLiteral("px_per_") + ending; fields.Has(key)) {
        lens.pixelsPerUnit = fields.Number(key, 1e-3, 1e9);
    }
}

}  // namespace

FileReading ReadSmallFile(const QString& path, int megabytes) {
    const auto error = [&](const Reason& why) {
        return FileReading{{}, Reason(ReasonCode::Of, path, why)};
    };
    const QFileInfo info(path);
    if (!info.exists()) {
        return error(ReasonCode::NoSuchFile);
    }
    if (!info.isFile()) {
        return error(ReasonCode::IsNoRegularFile);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return error({ReasonCode::Words, file.errorString()});
    }
    const qint64 most = qint64{megabytes} << 20;
    QByteArray bytes = file.read(most + 1);
    if (bytes.size() > most) {
        return error({ReasonCode::LargerThanMegabytes, megabytes});
    }
    if (bytes.isEmpty()) {
        return error(ReasonCode::FileEmpty);
    }
    return {std::move(bytes), {}};
}

QString TidyLensName(const QString& name) {
    QString tidy = name;
    std::replace_if(
        tidy.begin(), tidy.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, u' ');
    return tidy.simplified().left(longestLensName).trimmed();
}

QJsonObject LensToJson(const SampledLens& lens) {
    const QString ending = UnitEnding(lens.unit);
    QJsonObject json{{versionKey, newestVersion},
                     {QStringLiteral("name"), lens.name},
                     {anglesKey, Array(lens.knots, &LensKnot::angle)},
                     {QStringLiteral("radii_") + ending, Array(lens.knots, &LensKnot::radius)},
                     {originKey, OriginToJson(lens.origin)}};
    const auto addColour = [&](const QString& colour, const std::optional<ColourShift>& shift) {
        if (shift) {
            json[colour + ending] = QJsonArray{shift->first, shift->third, shift->fifth};
        }
    };
    addColour(QStringLiteral("red_shift_"), lens.red);
    addColour(QStringLiteral("blue_shift_"), lens.blue);
    if (lens.centre) {
        json[centreKey] =
            QJsonObject{{QStringLiteral("from_left_px"), lens.centre->x},
                        {QStringLiteral("from_bottom_px"), lens.centre->y},
                        {QStringLiteral("picture_width_px"), lens.centre->size.width},
                        {QStringLiteral("picture_height_px"), lens.centre->size.height}};
    }
    if (lens.pixelsPerUnit) {
        json[QStringLiteral("px_per_") + ending] = *lens.pixelsPerUnit;
    }
    return json;
}

LensReading LensFromJson(const QJsonObject& json) {
    LensReading reading;
    Fields fields(json, QString(), reading.reason);
    if (fields.Number(versionKey, 1, 1e9) > newestVersion) {
        return {{}, ReasonCode::NewerVersion};
    }
    SampledLens lens;
    lens.name = TidyLensName(fields.Text(QStringLiteral("name")));
    fields.Require(QStringLiteral("name"), !lens.name.isEmpty());
    ReadCurve(fields, lens);
    if (fields.Has(centreKey)) {
        lens.centre = CentreFrom(fields.Object(centreKey));
    }
    const QJsonArray photos =
        json.value(originKey).toObject().value(QStringLiteral("photos")).toArray();
    lens.origin = OriginFrom(fields.Object(originKey), photos);
    if (reading.reason.isEmpty()) {
        reading.reason = CurveError(lens.knots);
    }
    if (reading.reason.isEmpty()) {
        reading.lens = std::move(lens);
    }
    return reading;
}

QByteArray LensBytes(const SampledLens& lens) {
    return QJsonDocument(LensToJson(lens)).toJson();
}

JsonReading ReadJson(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isObject()) {
        return {document.object(), {}};
    }
    if (error.error == QJsonParseError::NoError) {
        return {{}, ReasonCode::NoLensFile};
    }
    const auto line = 1 + bytes.first(std::min<qsizetype>(error.offset, bytes.size())).count('\n');
    return {{}, {ReasonCode::AtLine, qint64{line}, Reason(ReasonCode::Words, error.errorString())}};
}

LensReading LensFromBytes(const QByteArray& bytes) {
    const JsonReading json = ReadJson(bytes);
    return json.reason.isEmpty() ? LensFromJson(json.object) : LensReading{{}, json.reason};
}

LensReading ReadLensFile(const QString& path) {
    const FileReading file = ReadSmallFile(path, largestLensFile);
    if (!file.reason.isEmpty()) {
        return {{}, file.reason};
    }
    LensReading reading = LensFromBytes(file.bytes);
    if (!reading.lens) {
        reading.reason = Reason(ReasonCode::Of, path, reading.reason);
    }
    return reading;
}

WriteResult WriteLensFile(const QString& path, const SampledLens& lens) {
    return WriteWholeFile(path, LensBytes(lens));
}

}  // namespace varnel
