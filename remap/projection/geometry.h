// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The lens model and the geometry that the projections share: plain functions of their arguments.
// Angles are radians unless a name says degrees; rows and vertical offsets count upward from the
// bottom row. What is a float here is rounded to single precision on purpose, all else is double.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "base/pixel_size.h"
#include "remap/projection/lens_spline.h"

namespace varnel {

// Sin: r = scale * sin(theta * factor). Tan: r = scale * tan(theta / factor). The factor multiplies
// in one and divides in the other; the catalogue's figures are made for that. Sampled: scale times
// what the spline says.
enum class LensKind { Sin, Tan, Sampled };

std::string_view ToText(LensKind kind);

struct LensCurve {
    float scale = 0.0F;   // millimetres; of a sampled lens, for each of its unit
    float factor = 0.0F;  // no unit
    std::shared_ptr<const LensSpline> spline{};  // of a sampled lens
    ColourShift shift{};                         // of its colour; as at the limit beyond the field
};

struct SensorSize {
    float width = 0.0F;   // millimetres, the longer side
    float height = 0.0F;  // millimetres
};

// Camera turns in radians, single precision.
struct Rotation {
    float x = 0.0F;  // positive looks down
    float y = 0.0F;  // positive looks right
    float z = 0.0F;  // positive rolls the camera counter-clockwise
};

struct Ray {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

// A source position relative to the centre of the image circle, in pixels, y upward.
struct SourceOffset {
    double u = 0.0;
    double v = 0.0;
};

// What a map returns for a direction that no source pixel shows; reads there give black.
SourceOffset NowhereOnSource();

// The centre of the image circle in bitmap coordinates, and how far the loops must reach from it.
struct CentreAndExtents {
    std::int32_t cx = 0;
    std::int32_t cy = 0;
    std::int32_t left = 0;    // columns below cx
    std::int32_t right = 0;   // columns above cx
    std::int32_t bottom = 0;  // rows below cy
    std::int32_t top = 0;     // rows above cy
};

// The centre offsets in whole pixels; y is upward and so carries the opposite sign of the record.
struct CentreShift {
    double x = 0.0;
    double y = 0.0;
};

// Compares exactly and with case. Everything is Sin but brand "GoPro" and "Samyang" (without its
// model "7.5 mm f/3.5") and, whatever the brand, the model "FCON-T01".
LensKind LensMappingKind(std::string_view lensBrand, std::string_view lensModel);

// The same rule without the exception for "FCON-T01": the gear catalogue computes angles of view
// with it, and its figures for that lens are meant so.
LensKind CatalogueMappingKind(std::string_view lensBrand, std::string_view lensModel);

// Distance from the image-circle centre on the sensor, millimetres, of a ray at theta >= 0.
double LensRadius(LensKind kind, double theta, const LensCurve& curve);
// The inverse, radians; not a number where a two-number lens shows no such radius.
double LensAngle(LensKind kind, double radius, const LensCurve& curve);
// Throws DivisionByZeroError when the factor of a two-number lens is 0.
void CheckLensFactor(LensKind kind, const LensCurve& curve);

// Source pixels per millimetre on the sensor. The width of an upright frame lies along the sensor's
// height. Throws DivisionByZeroError when that side of the sensor is 0.
double PixelsPerUnit(std::int32_t sourceWidth, bool landscape, const SensorSize& sensor);

// degrees * Pi / 180, rounded once to single precision.
float Radians(float degrees);

// The angle that a partial effect lays the picture out for: outputAov (radians) * percent / 100.
float EffectiveAngle(float outputAov, float effectPercent);

// The radial correction of a partial effect, always by the sine form, for Tan lenses too. The
// numerator takes the angle in degrees, the denominator the effective angle in radians. Throws
// DivisionByZeroError when the denominator's sine is 0.
double EffectRatio(float outputAovDegrees, float effectPercent, float lensFactor);
// The same for a lens: of a sampled one the ratio of the radii at half the two angles, one for all
// colours.
double EffectRatio(float outputAovDegrees, float effectPercent, LensKind kind,
                   const LensCurve& curve);

// Offsets in thousandths of width and height, rounded down to whole pixels.
CentreShift ShiftInPixels(PixelSize source, float offsetX, float offsetY);

// Throws OverflowError for a shift so large that sums with it would not fit 32 bits.
void CheckShift(const CentreShift& shift);

// Throws as CheckShift.
CentreAndExtents ImageCentre(PixelSize size, const CentreShift& shift);
CentreAndExtents ImageCentre(PixelSize source, float offsetX, float offsetY);

// Tilt and pan are scaled by the effect (percent), the roll is not. Arguments in degrees.
Rotation RotationAngles(float xDegrees, float yDegrees, float zDegrees, float effectPercent);

// Sines and cosines of a rotation, worked out once for a whole picture.
class RayRotation {
  public:
    explicit RayRotation(const Rotation& rotation);
    // Turns about the vertical axis, then the horizontal one, then the optical axis.
    Ray Turn(const Ray& ray) const;

  private:
    double cosX_, sinX_, cosY_, sinY_, cosZ_, sinZ_;
};

Ray RotateRay(const Ray& ray, const Rotation& rotation);

// The source offset at distance radius from the centre in the direction of (x, y), by the polar
// angle; (0, 0) when (x, y) is the centre itself.
SourceOffset PolarOffset(double x, double y, double radius);

// atan(x / sqrt(1 - x * x)) for -1 < x < 1; for every other x, 1 and -1 included, the constant
// 3.14159265359. Rows at the very edge of the circle are mirrored by that constant.
double ArcSin(double x);

}  // namespace varnel
