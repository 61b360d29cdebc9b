// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/model_fit.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varnel {

namespace {

constexpr std::size_t mostPoints = 40;
constexpr std::size_t folds = 5;

double SumOfSquares(const Numbers& rows) {
    return std::inner_product(rows.begin(), rows.end(), rows.begin(), 0.0);
}

}  // namespace

std::vector<EdgePoints> Condensed(const std::vector<EdgeTrace>& edges) {
    std::vector<EdgePoints> condensed;
    for (const EdgeTrace& edge : edges) {
        const std::size_t group = (edge.points.size() + mostPoints - 1) / mostPoints;
        EdgePoints few;
        for (std::size_t first = 0; first < edge.points.size(); first += group) {
            const std::size_t end = std::min(first + group, edge.points.size());
            EdgePoint mean;
            for (std::size_t n = first; n < end; ++n) {
                mean.x += edge.points[n].x / static_cast<double>(end - first);
                mean.y += edge.points[n].y / static_cast<double>(end - first);
            }
            few.push_back(mean);
        }
        condensed.push_back(std::move(few));
    }
    return condensed;
}

void EdgeLoss::Add(const LensView& lens, const EdgePoints& edge, Numbers& rows) const {
    constexpr double width = 2.385;
    for (const double residual : FitGreatCircle(lens, edge).residuals) {
        const double share = residual / (noise_ * width);
        rows.push_back(
            std::copysign(weight_ * width * std::sqrt(std::log1p(share * share)), share));
    }
}

double NoiseOf(const std::vector<EdgePoints>& edges, const LensView& lens) {
    Numbers sizes;
    for (const EdgePoints& edge : edges) {
        for (const double residual : FitGreatCircle(lens, edge).residuals) {
            sizes.push_back(std::fabs(residual));
        }
    }
    if (sizes.empty()) {
        return 1.0;
    }
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::ranges::nth_element(sizes, middle);
    return std::max(1.4826 * *middle, 0.03);
}

double WeightOf(const std::vector<EdgePoints>& edges, const LensView& lens) {
    constexpr double far = 4.0;  // times the noise: says nothing of the others
    const double limit = far * NoiseOf(edges, lens);
    double products = 0.0, squares = 1e-12;
    for (const EdgePoints& edge : edges) {
        const Numbers residuals = FitGreatCircle(lens, edge).residuals;
        for (std::size_t n = 1; n < residuals.size(); ++n) {
            const double one = std::clamp(residuals[n - 1], -limit, limit);
            const double next = std::clamp(residuals[n], -limit, limit);
            products += one * next;
            squares += 0.5 * (one * one + next * next);
        }
    }
    const double alike = std::clamp(products / squares, 0.0, 0.9);
    return std::sqrt((1.0 - alike) / (1.0 + alike));
}

LeastSquaresFit FitModel(const LensModel& model, const std::vector<EdgePoints>& edges,
                         const EdgeLoss& loss, Numbers start) {
    start.resize(model.Parameters(), 0.0);
    return Minimise(
        [&](const Numbers& parameters) {
            const LensView lens = model.At(parameters);
            Numbers rows = model.Priors(parameters, lens);
            for (const EdgePoints& edge : edges) {
                loss.Add(lens, edge, rows);
            }
            return rows;
        },
        std::move(start));
}

double MeanLoss(const LensView& lens, const std::vector<EdgePoints>& edges, const EdgeLoss& loss) {
    Numbers rows;
    for (const EdgePoints& edge : edges) {
        loss.Add(lens, edge, rows);
    }
    return rows.empty() ? 0.0 : SumOfSquares(rows) / static_cast<double>(rows.size());
}

double HeldOutLoss(const LensModel& model, const std::vector<EdgePoints>& edges,
                   const EdgeLoss& loss, const Numbers& start) {
    Numbers rows;
    for (std::size_t fold = 0; fold < std::min(folds, edges.size()); ++fold) {
        std::vector<EdgePoints> kept, out;
        for (std::size_t n = 0; n < edges.size(); ++n) {
            (n % folds == fold ? out : kept).push_back(edges[n]);
        }
        const LensView lens = model.At(FitModel(model, kept, loss, start).parameters);
        for (const EdgePoints& edge : out) {
            loss.Add(lens, edge, rows);
        }
    }
    return SumOfSquares(rows) / static_cast<double>(rows.size());
}

}  // namespace varnel
