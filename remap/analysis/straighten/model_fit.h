// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Fits of lens models to edges, and what held-out edges say of them. Throws std::bad_alloc.
#pragma once

#include <vector>

#include "remap/analysis/straighten/great_circle.h"
#include "remap/analysis/straighten/lens_model.h"

namespace varnel {

using EdgePoints = std::vector<EdgePoint>;

// Every edge with at most forty points, the means of neighbours.
std::vector<EdgePoints> Condensed(const std::vector<EdgeTrace>& edges);

// Residuals of edges with a robust loss, in units of the noise (pixels).
class EdgeLoss {
  public:
    explicit EdgeLoss(double noise) : noise_(noise) {}
    // Appends a row for each point.
    void Add(const LensView& lens, const EdgePoints& edge, Numbers& rows) const;
    double Noise() const { return noise_; }

  private:
    double noise_;
};

// The typical size of the points' residuals, as a deviation, pixels.
double NoiseOf(const std::vector<EdgePoints>& edges, const LensView& lens);

LeastSquaresFit FitModel(const LensModel& model, const std::vector<EdgePoints>& edges,
                         const EdgeLoss& loss, Numbers start);

// The mean square of the loss per point, of edges as the lens shows them.
double MeanLoss(const LensView& lens, const std::vector<EdgePoints>& edges, const EdgeLoss& loss);

// The same for every edge by a fit to others.
double HeldOutLoss(const LensModel& model, const std::vector<EdgePoints>& edges,
                   const EdgeLoss& loss, const Numbers& start);

}  // namespace varnel
