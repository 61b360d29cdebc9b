// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The planes that projections lay the sphere of directions out on: from a point of the result to
// the direction that it shows. Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "remap/projection/geometry.h"

namespace varnel {

// What a plane is fitted into: half the angle of view (radians) reaches over the half width.
struct PlaneFit {
    double halfWidth = 0.0;  // pixels, not 0
    double height = 0.0;     // pixels, of the whole frame, not 0
    double halfAngle = 0.0;  // above 0
};

class SpherePlane {
  public:
    struct Point {
        Ray ray;              // of length 1, z along the camera's axis
        double inside = 1.0;  // below 0 where the plane shows nothing: smooth, without a unit
    };

    virtual ~SpherePlane() = default;
    // In pixels from the middle of the frame, x to the right and y upward. Throws nothing.
    virtual Point At(double x, double y) const = 0;
};

using PlanePointer = std::unique_ptr<SpherePlane>;

// Around the axis; r is the distance from it and theta the angle.
PlanePointer StereographicPlane(const PlaneFit& fit);  // r = 2 tan(theta / 2)
PlanePointer EquidistantPlane(const PlaneFit& fit);    // r = theta
PlanePointer EquisolidPlane(const PlaneFit& fit);      // r = 2 sin(theta / 2)
PlanePointer OrthographicPlane(const PlaneFit& fit);   // r = sin(theta)

// Around an upright cylinder: x is the horizontal angle, y by the vertical angle lambda.
PlanePointer CylindricalPlane(const PlaneFit& fit);      // y = tan(lambda)
PlanePointer MercatorPlane(const PlaneFit& fit);         // y = ln tan(pi / 4 + lambda / 2)
PlanePointer EquirectangularPlane(const PlaneFit& fit);  // y = lambda

// x = S sin(phi), y = S tan(lambda) at S = (d + 1) / (d + cos(phi)).
struct PaniniShape {
    double d = 1.0;  // 0 to 1
    // 0 to 1: the share of what draws lines across, which are bent toward the middle, straight
    // again. Up to 75 degrees to each side 1 does so wholly, beyond it gives way: such lines would
    // leave for infinity at 90 degrees.
    double squeeze = 0.0;
};
PlanePointer PaniniPlane(const PlaneFit& fit, const PaniniShape& shape);

// Columns are azimuths around the axis, rows the angles from it. Radians.
struct UnrollShape {
    double start = 0.0;      // azimuth of the left border, 0 is up, clockwise as seen
    double direction = 1.0;  // 1 or -1, the way in which azimuths grow to the right
    double bottom = 0.0;     // angles from the axis
    double top = 0.0;
};
PlanePointer UnrolledPlane(const PlaneFit& fit, const UnrollShape& shape);

}  // namespace varnel
