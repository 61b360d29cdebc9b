// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/equidistance_map.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"

namespace varnel {

namespace {

// This projection alone was laid out with a double pi; the others use the single-precision one.
constexpr double equidistancePi = 3.14159265359;

double FrameAngleOf(const EquidistanceView& view) {
    return static_cast<double>(view.inputAov) * equidistancePi / 180.0 *
           static_cast<double>(view.sensor.width) /
           NonZero(static_cast<double>(view.sensor.height), "SensorHeight");
}

// Up to a ratio of 100 the circle is larger than the frame and the frame's half side serves.
std::int32_t ReferenceRadiusOf(const EquidistanceView& view) {
    if (view.ratio > 100.0F) {
        const std::int32_t side = view.landscape ? view.source.width : view.source.height;
        return CLng(static_cast<double>(view.imageCircleRadius) * side /
                        NonZero(static_cast<double>(view.sensor.width), "SensorWidth"),
                    "ImageCircleRadius");
    }
    return std::max(view.source.width / 2, view.source.height / 2);
}

}  // namespace

EquidistanceMap::EquidistanceMap(const EquidistanceView& view)
    : kind_(view.kind),
      curve_(view.curve),
      frameAngle_(FrameAngleOf(view)),
      referenceRadius_(ReferenceRadiusOf(view)),
      pixelsPerMillimetre_(view.source.width /
                           NonZero(static_cast<double>(view.sensor.width), "SensorWidth")) {
    NonZero(referenceRadius_, ReasonCode::ReferenceRadius);
    if (kind_ == LensKind::Tan) {
        NonZero(static_cast<double>(curve_.factor), "LensMapFactor");
    }
}

double EquidistanceMap::SourceRadius(double r) const {
    const double theta = r * frameAngle_ / referenceRadius_ / 2.0;
    return LensRadius(kind_, theta, curve_) * pixelsPerMillimetre_;
}

SourceOffset EquidistanceMap::At(int x, int y) const {
    const double r = std::sqrt(std::pow(y, 2) + std::pow(x, 2));
    if (r == 0.0) {
        return {};
    }
    const double rho = SourceRadius(r);
    return {x * rho / r, y * rho / r};
}

}  // namespace varnel
