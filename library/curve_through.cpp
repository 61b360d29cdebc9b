// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/curve_through.h"

#include <algorithm>
#include <numbers>

#include "library/guard.h"

namespace varnel {

namespace {

constexpr double widest = 180.0;

void Check(std::span<const double> degrees, std::span<const double> radii) {
    const auto rises = [](std::span<const double> numbers) {
        return numbers.front() == 0.0 &&
               std::ranges::adjacent_find(numbers, [](double a, double b) { return !(b > a); }) ==
                   numbers.end();
    };
    if (degrees.size() < 2) {
        throw CallError(VARNEL_BAD_ARGUMENT, QStringLiteral("a curve has two points or more"));
    }
    if (!rises(degrees) || !rises(radii) || !(degrees.back() <= widest) || !(radii.back() < 1e12)) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QStringLiteral("angles and radii have to rise from 0, angles up to %1 "
                                       "degrees at most")
                            .arg(widest));
    }
}

}  // namespace

// The slopes of Fritsch and Butland: between the two sides' by their harmonic mean, weighted by the
// lengths of the pieces, so that nothing swings beyond the points.
CurveThrough::CurveThrough(std::span<const double> degrees, std::span<const double> radii) {
    Check(degrees, radii);
    for (std::size_t n = 0; n < degrees.size(); ++n) {
        points_.push_back({degrees[n] * std::numbers::pi / 180.0, radii[n], 0.0});
    }
    const auto length = [&](std::size_t n) { return points_[n + 1].angle - points_[n].angle; };
    const auto rise = [&](std::size_t n) {
        return (points_[n + 1].radius - points_[n].radius) / length(n);
    };
    const std::size_t last = points_.size() - 1;
    for (std::size_t n = 1; n < last; ++n) {
        const double before = length(n) + 2.0 * length(n - 1);
        const double after = 2.0 * length(n) + length(n - 1);
        points_[n].slope = (before + after) / (before / rise(n) + after / rise(n - 1));
    }
    // At the ends as a parabola through the end has it, but not below 0 nor above three times the
    // piece's own.
    const auto atEnd = [](double own, double inner) {
        return std::clamp((3.0 * own - inner) / 2.0, 0.0, 3.0 * own);
    };
    points_.front().slope = last == 1 ? rise(0) : atEnd(rise(0), points_[1].slope);
    points_.back().slope = last == 1 ? rise(0) : atEnd(rise(last - 1), points_[last - 1].slope);
}

double CurveThrough::At(double angle) const {
    const auto after = std::ranges::upper_bound(points_, angle, {}, &Point::angle);
    const auto to = std::clamp(after, points_.begin() + 1, points_.end() - 1);
    const Point& a = *(to - 1);
    const Point& b = *to;
    const double length = b.angle - a.angle;
    const double t = (angle - a.angle) / length;
    const double s = 1.0 - t;
    return s * s * (1.0 + 2.0 * t) * a.radius + t * t * (1.0 + 2.0 * s) * b.radius +
           s * t * length * (s * a.slope - t * b.slope);
}

}  // namespace varnel
