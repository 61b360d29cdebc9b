// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How a lens draws, in pixels of one photo: a rising curve from angles to radii, and the place of
// the optical axis. Angles are radians from the axis. Positions as in edge_trace.h; rays have x to
// the right, y up and z along the axis. Throws std::bad_alloc, and what it says.
#pragma once

#include <functional>
#include <vector>

#include "remap/analysis/straighten/edge_trace.h"
#include "remap/projection/geometry.h"
#include "state/records/sampled_lens.h"

namespace varnel {

class RadialCurve {
  public:
    // The radius, pixels, as a function of the angle from 0 to the limit. Where it turns back the
    // curve goes on with a small slope; beyond the limit it is continued by a straight line.
    RadialCurve(const std::function<double(double)>& radius, double limit);

    struct Place {
        double angle = 0.0;
        double slope = 0.0;  // radians per pixel
    };
    Place At(double radius) const;
    double Radius(double angle) const;
    double Limit() const { return limit_; }
    // False when the function turned back before the limit.
    bool Rises() const { return rises_; }

  private:
    struct Knot {
        double angle, radius, slope;  // pixels per radian
    };
    std::vector<Knot> knots_;
    double limit_;
    bool rises_ = true;
};

struct LensView {
    RadialCurve curve;
    EdgePoint centre;

    Ray RayAt(const EdgePoint& place) const;  // length 1
    EdgePoint PlaceOf(const Ray& ray) const;
};

// The angle at which the lens reaches a radius, found on its formula; limited to 150 degrees.
LensView ViewOfFormula(LensKind kind, const LensCurve& curve, double pixelsPerMillimetre,
                       const EdgePoint& centre);
// Throws RunTimeError for knots that are no curve.
LensView ViewOfLens(const SampledLens& lens, double pixelsPerUnit, const EdgePoint& centre);

}  // namespace varnel
