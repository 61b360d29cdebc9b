// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is straight in space lies in a plane through the lens, and so on a great circle of rays.
// Rays as in lens_view.h.
#pragma once

#include <vector>

#include "remap/analysis/straighten/lens_view.h"
#include "remap/projection/rays.h"

namespace varnel {

// How well an edge lies on the great circle that fits it best.
struct CircleFit {
    Ray normal;                     // of the plane, length 1
    std::vector<double> residuals;  // of each point across the edge, pixels
    double rms = 0.0;               // pixels
};

// Sums of the products of the rays' components, each ray with its weight: xx, xy, xz, yy, yz, zz.
struct Scatter {
    double xx = 0.0, xy = 0.0, xz = 0.0, yy = 0.0, yz = 0.0, zz = 0.0;

    void Add(const Ray& ray, double weight);
    // inverse(this + a little) * ray, not scaled: a step toward the direction of the least scatter.
    Ray Solve(const Ray& ray) const;
    double Along(const Ray& ray) const;
    // The direction of the least scatter, length 1; start must not be at right angles to it.
    Ray Least(const Ray& start) const;
};

// Two points or more; fewer give residuals of 0. Throws std::bad_alloc, the others nothing.
CircleFit FitGreatCircle(const LensView& lens, const std::vector<EdgePoint>& points);

}  // namespace varnel
