// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/record_fields.h"

#include <QLatin1StringView>
#include <array>
#include <limits>
#include <variant>

#include "remap/projection/projection_info.h"
#include "state/adjustments/face_text.h"
#include "state/adjustments/outside_text.h"
#include "state/adjustments/sampling_text.h"
#include "state/settings/number_text.h"

namespace varnel {

namespace {

using FieldPointer =
    std::variant<std::int16_t ImageRecord::*, std::int32_t ImageRecord::*, Bool16 ImageRecord::*,
                 float ImageRecord::*, QString ImageRecord::*, OutsideFill ImageRecord::*,
                 CameraPose ImageRecord::*, std::vector<FaceEllipse> ImageRecord::*,
                 SamplingKind ImageRecord::*>;

struct Field {
    QLatin1StringView name;
    FieldPointer pointer;
    bool isPart = false;  // of 1
};

#define VARNEL_FIELD(name)                           \
    Field {                                          \
        QLatin1StringView(#name), &ImageRecord::name \
    }
#define VARNEL_PART(name)                                  \
    Field {                                                \
        QLatin1StringView(#name), &ImageRecord::name, true \
    }
constexpr std::array fields{
    VARNEL_FIELD(Width),
    VARNEL_FIELD(Height),
    VARNEL_FIELD(Landscape),
    VARNEL_FIELD(GearName),
    VARNEL_FIELD(CameraBrand),
    VARNEL_FIELD(CameraModel),
    VARNEL_FIELD(SensorWidth),
    VARNEL_FIELD(SensorHeight),
    VARNEL_FIELD(CameraData1),
    VARNEL_FIELD(CameraData2),
    VARNEL_FIELD(LensBrand),
    VARNEL_FIELD(LensModel),
    VARNEL_FIELD(ImageCircleRadius),
    VARNEL_FIELD(LensShift),
    VARNEL_FIELD(LensData3),
    VARNEL_FIELD(LensMapScale),
    VARNEL_FIELD(LensMapFactor),
    VARNEL_FIELD(Projection),
    VARNEL_FIELD(SettingsApplied),
    VARNEL_FIELD(OfsetX),
    VARNEL_FIELD(OfsetY),
    VARNEL_FIELD(Ratio),
    VARNEL_FIELD(InputAOV),
    VARNEL_FIELD(OutputAOV),
    VARNEL_FIELD(EffectVarnel),
    VARNEL_FIELD(EffectRectilinear),
    VARNEL_FIELD(RotateX),
    VARNEL_FIELD(RotateY),
    VARNEL_FIELD(RotateZ),
    VARNEL_FIELD(TranslateX),
    VARNEL_FIELD(TranslateY),
    VARNEL_FIELD(Folder),
    VARNEL_FIELD(FileName),
    VARNEL_FIELD(NameSuffix),
    VARNEL_FIELD(Orientation),
    VARNEL_FIELD(OutputWidth),
    VARNEL_FIELD(OutputHeight),
    VARNEL_PART(CropLeft),
    VARNEL_PART(CropTop),
    VARNEL_PART(CropWidth),
    VARNEL_PART(CropHeight),
    VARNEL_FIELD(Outside),
    VARNEL_FIELD(PaniniD),
    VARNEL_FIELD(PaniniSqueeze),
    VARNEL_FIELD(UnrollStart),
    VARNEL_FIELD(UnrollDirection),
    VARNEL_FIELD(UnrollFrom),
    VARNEL_FIELD(UnrollTo),
    VARNEL_FIELD(Pose),
    VARNEL_FIELD(Tunnel),
    VARNEL_FIELD(Marks),
    VARNEL_FIELD(Faces),
    VARNEL_FIELD(Sampling),
};
#undef VARNEL_FIELD
#undef VARNEL_PART
static_assert(fields.size() == 53);

constexpr std::array poses{std::pair{QLatin1StringView("level"), CameraPose::Level},
                           std::pair{QLatin1StringView("up"), CameraPose::Up},
                           std::pair{QLatin1StringView("down"), CameraPose::Down}};

std::optional<std::int16_t> Parse(const QString& text, std::int16_t /*kind*/) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::optional<int> whole = WholeFromText(text);
    if (!whole || *whole < Limits::min() || *whole > Limits::max()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(*whole);
}

// The sides of a result, pixels.
std::optional<std::int32_t> Parse(const QString& text, std::int32_t /*kind*/) {
    const std::optional<int> whole = WholeFromText(text);
    return whole && *whole >= 0 && *whole <= largestResultSide ? whole : std::nullopt;
}

std::optional<Bool16> Parse(const QString& text, Bool16 /*kind*/) {
    for (const auto on : {u"True", u"true", u"1", u"-1"}) {
        if (text == QStringView(on)) {
            return Bool16(true);
        }
    }
    for (const auto off : {u"False", u"false", u"0"}) {
        if (text == QStringView(off)) {
            return Bool16(false);
        }
    }
    return std::nullopt;
}

std::optional<float> Parse(const QString& text, float /*kind*/) {
    return FloatFromPointText(text);
}

std::optional<QString> Parse(const QString& text, const QString& /*kind*/) {
    return text;
}

std::optional<CameraPose> Parse(const QString& text, CameraPose /*kind*/) {
    for (const auto& [name, pose] : poses) {
        if (text.compare(name, Qt::CaseInsensitive) == 0 ||
            text == QString::number(static_cast<int>(pose))) {
            return pose;
        }
    }
    return std::nullopt;
}

std::optional<SamplingKind> Parse(const QString& text, SamplingKind /*kind*/) {
    return SamplingFromText(text);
}

std::optional<OutsideFill> Parse(const QString& text, const OutsideFill& /*kind*/) {
    return OutsideFromText(text);
}

QString TextOf(const OutsideFill& value) {
    return ToText(value);
}

QString TextOf(std::int32_t value) {
    return QString::number(value);
}

std::optional<std::vector<FaceEllipse>> Parse(const QString& text,
                                              const std::vector<FaceEllipse>& /*kind*/) {
    return FacesFromText(text);
}

QString TextOf(std::int16_t value) {
    return QString::number(value);
}

QString TextOf(Bool16 value) {
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString TextOf(float value) {
    return QString::number(static_cast<double>(value), 'g',
                           std::numeric_limits<float>::max_digits10);
}

QString TextOf(const QString& value) {
    return value;
}

QString TextOf(const std::vector<FaceEllipse>& value) {
    return TextOfFaces(value);
}

QString TextOf(SamplingKind value) {
    return ToText(value);
}

QString TextOf(CameraPose value) {
    for (const auto& [name, pose] : poses) {
        if (pose == value) {
            return name;
        }
    }
    return poses.front().first;
}

FieldResult SetDirection(ImageRecord& image, const QString& text) {
    const std::optional<int> direction = WholeFromText(text);
    if (direction != 1 && direction != -1) {
        return FieldResult::BadValue;
    }
    image.UnrollDirection = static_cast<std::int16_t>(*direction);
    return FieldResult::Ok;
}

template <class Value>
FieldResult SetValue(Value& target, const QString& text) {
    std::optional<Value> value = Parse(text, target);
    if (!value) {
        return FieldResult::BadValue;
    }
    target = *std::move(value);
    return FieldResult::Ok;
}

bool IsPart(const QString& text) {
    const std::optional<float> number = FloatFromPointText(text);
    return number && *number >= 0.0F && *number <= 1.0F;
}

}  // namespace

FieldResult SetField(ImageRecord& image, const QString& field, const QString& value) {
    for (const Field& known : fields) {
        if (field != known.name) {
            continue;
        }
        if (known.pointer == FieldPointer(&ImageRecord::Projection)) {
            if (const auto projection = ProjectionFromText(value)) {
                image.Projection = static_cast<std::int16_t>(*projection);
                return FieldResult::Ok;
            }
        }
        if (known.pointer == FieldPointer(&ImageRecord::UnrollDirection)) {
            return SetDirection(image, value);
        }
        if (known.isPart && !IsPart(value)) {
            return FieldResult::BadValue;
        }
        return std::visit([&](auto pointer) { return SetValue(image.*pointer, value); },
                          known.pointer);
    }
    return FieldResult::UnknownField;
}

QString FieldText(const ImageRecord& image, const QString& field) {
    for (const Field& known : fields) {
        if (field == known.name) {
            return std::visit([&](auto pointer) { return TextOf(image.*pointer); }, known.pointer);
        }
    }
    return {};
}

QStringList FieldNames() {
    QStringList names;
    for (const Field& field : fields) {
        names.append(field.name);
    }
    return names;
}

}  // namespace varnel
