// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/equidistance_map.h"

#include <algorithm>
#include <cmath>

#include "base/line_range.h"
#include "base/rounding.h"
#include "remap/projection/maps/map_nodes.h"

namespace varnel {

namespace {

// This projection alone was laid out with a double pi; the others use the single-precision one.
constexpr double equidistancePi = 3.14159265359;

double FrameAngleOf(const EquidistanceView& view) {
    return static_cast<double>(view.inputAov) * equidistancePi / 180.0 *
           static_cast<double>(view.source.sensor.width) /
           NonZero(static_cast<double>(view.source.sensor.height), "SensorHeight");
}

// Up to a ratio of 100 the circle is larger than the frame and the frame's half side serves.
std::int32_t ReferenceRadiusOf(const EquidistanceView& view) {
    if (view.source.ratio > 100.0F) {
        const std::int32_t side =
            view.source.landscape ? view.source.size.width : view.source.size.height;
        return CLng(static_cast<double>(view.imageCircleRadius) * side /
                        NonZero(static_cast<double>(view.source.sensor.width), "SensorWidth"),
                    "ImageCircleRadius");
    }
    return std::max(view.source.size.width / 2, view.source.size.height / 2);
}

}  // namespace

EquidistanceMap::EquidistanceMap(const EquidistanceView& view)
    : SmoothMap(view.source, view.output),
      kind_(view.kind),
      curve_(view.curve),
      frameAngle_(FrameAngleOf(view)),
      referenceRadius_(ReferenceRadiusOf(view)),
      outputRadius_(referenceRadius_ * view.output.scale),
      // The width of the sensor for upright frames, too.
      pixelsPerMillimetre_(view.source.size.width /
                           NonZero(static_cast<double>(view.source.sensor.width), "SensorWidth")) {
    NonZero(referenceRadius_, ReasonCode::ReferenceRadius);
    if (kind_ == LensKind::Tan) {
        NonZero(static_cast<double>(curve_.factor), "LensMapFactor");
    }
}

double EquidistanceMap::SourceRadius(double r) const {
    const double theta = r * frameAngle_ / outputRadius_ / 2.0;
    return LensRadius(kind_, theta, curve_) * pixelsPerMillimetre_;
}

std::unique_ptr<SmoothNodes> EquidistanceMap::Nodes() const {
    const CentreAndExtents& centre = Extents();
    const PixelSize size = Output().size;
    // As far as nodes go beyond the lines.
    constexpr int margin = largestNodeStep * (nodesAround + 1);
    const int offPicture = std::max(OnPicture(centre.cx, size.width, centre.left).first,
                                    OnPicture(centre.cy, size.height, centre.bottom).first);
    // A table from the centre on would be too coarse for a picture far away from it.
    const bool isFar = offPicture / 8 > std::max(size.width, size.height);
    const EquidistanceNodes nodes(*this, isFar ? std::max(offPicture - margin, 0) : 0,
                                  std::hypot(centre.left + largestNodeStep * nodesAround,
                                             centre.bottom + largestNodeStep * nodesAround));
    return NodesFromAxis(nodes);
}

SourceOffset EquidistanceMap::At(int x, int y) const {
    const double r = std::sqrt(std::pow(y, 2) + std::pow(x, 2));
    if (r == 0.0) {
        return FromAxis({});
    }
    const double rho = SourceRadius(r);
    return FromAxis({x * rho / r, y * rho / r});
}

}  // namespace varnel
