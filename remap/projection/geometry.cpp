// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/geometry.h"

#include <cmath>
#include <limits>

#include "base/rounding.h"

namespace varnel {

std::string_view ToText(LensKind kind) {
    return kind == LensKind::Sin ? "Sin" : "Tan";
}

SourceOffset NowhereOnSource() {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return {infinity, infinity};
}

LensKind CatalogueMappingKind(std::string_view lensBrand, std::string_view lensModel) {
    const bool tangentBrand = lensBrand == "GoPro" || lensBrand == "Samyang";
    return tangentBrand && lensModel != "7.5 mm f/3.5" ? LensKind::Tan : LensKind::Sin;
}

LensKind LensMappingKind(std::string_view lensBrand, std::string_view lensModel) {
    return lensModel == "FCON-T01" ? LensKind::Tan : CatalogueMappingKind(lensBrand, lensModel);
}

double LensRadius(LensKind kind, double theta, const LensCurve& curve) {
    const double scale = static_cast<double>(curve.scale);
    const double factor = static_cast<double>(curve.factor);
    switch (kind) {
        case LensKind::Sin:
            return scale * std::sin(theta * factor);
        case LensKind::Tan:
            return scale * std::tan(theta / factor);
        case LensKind::Sampled:
            break;
    }
    const double shift = curve.shift.At(std::min(theta, curve.spline->FieldLimit()));
    return scale * (curve.spline->RadiusAt(theta) + shift);
}

double LensAngle(LensKind kind, double radius, const LensCurve& curve) {
    const double scale = static_cast<double>(curve.scale);
    const double factor = static_cast<double>(curve.factor);
    switch (kind) {
        case LensKind::Sin:
            return std::asin(radius / scale) / factor;
        case LensKind::Tan:
            return std::atan(radius / scale) * factor;
        case LensKind::Sampled:
            break;
    }
    return curve.spline->AngleAt(radius / scale);
}

void CheckLensFactor(LensKind kind, const LensCurve& curve) {
    if (kind != LensKind::Sampled) {
        NonZero(static_cast<double>(curve.factor), "LensMapFactor");
    }
}

double PixelsPerUnit(std::int32_t sourceWidth, bool landscape, const SensorSize& sensor) {
    const double side = landscape ? NonZero(static_cast<double>(sensor.width), "SensorWidth")
                                  : NonZero(static_cast<double>(sensor.height), "SensorHeight");
    return sourceWidth / side;
}

float Radians(float degrees) {
    return ToSingle(static_cast<double>(degrees) * static_cast<double>(Pi) / 180.0,
                    ReasonCode::AngleInRadians);
}

float EffectiveAngle(float outputAov, float effectPercent) {
    return ToSingle(static_cast<double>(outputAov) * static_cast<double>(effectPercent) / 100.0,
                    ReasonCode::EffectiveAngle);
}

double EffectRatio(float outputAovDegrees, float effectPercent, float lensFactor) {
    const double factor = static_cast<double>(lensFactor);
    const double full =
        factor * static_cast<double>(outputAovDegrees) * static_cast<double>(Pi) / 180.0 / 2.0;
    const float effective = EffectiveAngle(Radians(outputAovDegrees), effectPercent);
    const double partial = std::sin(factor * static_cast<double>(effective) / 2.0);
    return std::sin(full) / NonZero(partial, ReasonCode::SineOfHalfAngle);
}

double EffectRatio(float outputAovDegrees, float effectPercent, LensKind kind,
                   const LensCurve& curve) {
    if (kind != LensKind::Sampled) {
        return EffectRatio(outputAovDegrees, effectPercent, curve.factor);
    }
    const double full = static_cast<double>(Radians(outputAovDegrees)) / 2.0;
    const double partial =
        static_cast<double>(EffectiveAngle(Radians(outputAovDegrees), effectPercent)) / 2.0;
    const LensSpline& spline = *curve.spline;
    return spline.RadiusAt(full) / NonZero(spline.RadiusAt(partial), ReasonCode::SineOfHalfAngle);
}

CentreShift ShiftInPixels(PixelSize source, float offsetX, float offsetY) {
    return {Int(static_cast<double>(offsetX) * source.width / 1000.0),
            -Int(static_cast<double>(offsetY) * source.height / 1000.0)};
}

void CheckShift(const CentreShift& shift) {
    constexpr double limit = 5e8;  // sums of a few of these still fit 32 bits
    if (!(std::fabs(shift.x) <= limit)) {
        throw OverflowError(ReasonCode::OverflowOf32Bits, "OfsetX");
    }
    if (!(std::fabs(shift.y) <= limit)) {
        throw OverflowError(ReasonCode::OverflowOf32Bits, "OfsetY");
    }
}

CentreAndExtents ImageCentre(PixelSize source, float offsetX, float offsetY) {
    return ImageCentre(source, ShiftInPixels(source, offsetX, offsetY));
}

CentreAndExtents ImageCentre(PixelSize size, const CentreShift& shift) {
    CheckShift(shift);
    const std::int32_t halfWidth = size.width / 2;
    const std::int32_t halfHeight = size.height / 2;
    return {CLng(shift.x + halfWidth, "OfsetX"),
            CLng(shift.y + halfHeight, "OfsetY"),
            CLng(std::fabs(shift.x) + halfWidth, "OfsetX"),
            CLng(std::fabs(shift.x) + (size.width - halfWidth), "OfsetX"),
            CLng(std::fabs(shift.y) + halfHeight, "OfsetY"),
            CLng(std::fabs(shift.y) + (size.height - halfHeight), "OfsetY")};
}

Rotation RotationAngles(float xDegrees, float yDegrees, float zDegrees, float effectPercent) {
    const double pi = static_cast<double>(Pi);
    const double effect = static_cast<double>(effectPercent);
    return {ToSingle(static_cast<double>(xDegrees) * effect * pi / 18000.0, "RotateX"),
            ToSingle(static_cast<double>(yDegrees) * effect * pi / 18000.0, "RotateY"),
            ToSingle(pi * static_cast<double>(zDegrees) / 180.0, "RotateZ")};
}

RayRotation::RayRotation(const Rotation& rotation)
    : cosX_(std::cos(static_cast<double>(rotation.x))),
      sinX_(std::sin(static_cast<double>(rotation.x))),
      cosY_(std::cos(static_cast<double>(rotation.y))),
      sinY_(std::sin(static_cast<double>(rotation.y))),
      cosZ_(std::cos(static_cast<double>(rotation.z))),
      sinZ_(std::sin(static_cast<double>(rotation.z))) {}

Ray RayRotation::Turn(const Ray& ray) const {
    const double x1 = cosY_ * ray.x + sinY_ * ray.z;
    const double z1 = cosY_ * ray.z - sinY_ * ray.x;
    const double y2 = cosX_ * ray.y - sinX_ * z1;
    const double z2 = cosX_ * z1 + sinX_ * ray.y;
    const double x3 = cosZ_ * x1 - sinZ_ * y2;
    const double y3 = cosZ_ * y2 + sinZ_ * x1;
    return {x3, y3, z2};
}

Ray RotateRay(const Ray& ray, const Rotation& rotation) {
    return RayRotation(rotation).Turn(ray);
}

SourceOffset PolarOffset(double x, double y, double radius) {
    if (x > 0.0) {
        const double psi = std::atan(y / x);
        return {radius * std::cos(psi), radius * std::sin(psi)};
    }
    if (x < 0.0) {
        const double psi = std::atan(-y / x);
        return {-radius * std::cos(psi), radius * std::sin(psi)};
    }
    if (y == 0.0) {
        return {};
    }
    const double psi = static_cast<double>(y > 0.0 ? Pi / 2.0F : -Pi / 2.0F);
    return {radius * std::cos(psi), radius * std::sin(psi)};
}

double ArcSin(double x) {
    if (-1.0 < x && x < 1.0) {
        return std::atan(x / std::sqrt(1.0 - x * x));
    }
    return 3.14159265359;
}

}  // namespace varnel
