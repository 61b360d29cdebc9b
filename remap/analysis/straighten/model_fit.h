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
    // Weight: the share of a point's deviation that counts, below 1 where neighbours err together.
    explicit EdgeLoss(double noise, double weight = 1.0) : noise_(noise), weight_(weight) {}
    // Appends a row for each point.
    void Add(const LensView& lens, const EdgePoints& edge, Numbers& rows) const;
    // The deviation of a point that would err by itself and say as much, pixels.
    double Noise() const { return noise_ / weight_; }

  private:
    double noise_;
    double weight_;
};

// The typical size of the points' residuals, as a deviation, pixels.
double NoiseOf(const std::vector<EdgePoints>& edges, const LensView& lens);

// The weight of a loss, by how alike the residuals of neighbouring points are.
double WeightOf(const std::vector<EdgePoints>& edges, const LensView& lens);

LeastSquaresFit FitModel(const LensModel& model, const std::vector<EdgePoints>& edges,
                         const EdgeLoss& loss, Numbers start);

// The mean square of the loss per point, of edges as the lens shows them.
double MeanLoss(const LensView& lens, const std::vector<EdgePoints>& edges, const EdgeLoss& loss);

// The same for every edge by a fit to others.
double HeldOutLoss(const LensModel& model, const std::vector<EdgePoints>& edges,
                   const EdgeLoss& loss, const Numbers& start);

}  // namespace varnel
