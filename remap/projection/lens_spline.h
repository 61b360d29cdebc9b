// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The curve of a sampled lens between and beyond its knots. Angles are radians from the optical
// axis and not below 0; radii are in the lens's unit.
#pragma once

#include <array>
#include <functional>

#include "base/reason.h"
#include "state/records/sampled_lens.h"

namespace varnel {

using LensKnots = std::array<LensKnot, lensKnots>;

// Empty for knots that a LensSpline takes: finite, from (0, 0) on, angles and radii rising, no
// angle above pi. Otherwise what is wrong; for radii that fall, the angle in degrees at which they
// turn back. Throws std::bad_alloc only.
Reason CurveError(const LensKnots& knots);

struct SampledCurve {
    LensKnots knots{};
    double error = 0.0;  // the largest between the knots, in the unit of the radii
    Reason reason;       // where it is not empty, the knots are of no use
};

// Sixteen knots of a curve from 0 to the limit of its field (0 < limit <= pi). They stand so that
// the curves of fisheye lenses come back to 4e-6 of the radius at the limit (0.01 px at 24
// megapixels). Refuses curves that do not rise, with the angle at which they turn back. Throws what
// the function throws.
SampledCurve SampledFrom(const std::function<double(double)>& radiusOfAngle, double limit);

// The angle at which the curve turns back, up to the given limit; the limit where it rises all the
// way. A radius that is no number counts as turning back.
double RisesUpTo(const std::function<double(double)>& radiusOfAngle, double limit);

// Cubic in each piece, with the slopes of the smoothest spline, flattened where those would not be
// monotone (Fritsch and Carlson). Cheap to copy. Its functions throw nothing.
class LensSpline {
  public:
    // Throws RunTimeError for knots in which CurveError finds an error.
    explicit LensSpline(const LensKnots& knots);
    explicit LensSpline(const SampledLens& lens) : LensSpline(lens.knots) {}

    // Beyond the field both go on in a straight line, with the slope at the limit or a hundredth of
    // the mean one if that is more. The inverse is exact to 1e-12 of the radius at the limit.
    double RadiusAt(double angle) const;
    double AngleAt(double radius) const;
    // Units of radius by radian, not below 0.
    double SlopeAt(double angle) const;

    double FieldLimit() const { return knots_.back().angle; }
    double RadiusAtLimit() const { return knots_.back().radius; }

  private:
    // radius = start.radius + (c1 + (c2 + c3 t) t) t at t = angle - start.angle.
    struct Piece {
        LensKnot start;
        double c1 = 0.0, c2 = 0.0, c3 = 0.0;
    };
    const Piece& PieceAt(double angle) const;

    LensKnots knots_;
    std::array<Piece, lensKnots> pieces_;  // the last one goes on beyond the field
};

}  // namespace varnel
