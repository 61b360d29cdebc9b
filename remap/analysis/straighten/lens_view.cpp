// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/lens_view.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "remap/projection/lens_spline.h"

namespace varnel {

namespace {

constexpr int intervals = 80;
constexpr double leastSlope = 0.02;  // of the slope at the axis

// The cubic through two points with their slopes, at a share of the way.
double Cubic(double share, double from, double to, double fromSlope, double toSlope) {
    const double bend = fromSlope + toSlope - 2.0 * (to - from);
    return from + share * (fromSlope + share * (to - from - fromSlope - bend + share * bend));
}

double SlopeOf(const std::function<double(double)>& radius, double angle) {
    constexpr double step = 1e-4;
    return (radius(angle + step) - radius(angle - step)) / (2.0 * step);
}

}  // namespace

RadialCurve::RadialCurve(const std::function<double(double)>& radius, double limit)
    : limit_(limit) {
    const double step = limit / intervals;
    const double first = std::max(SlopeOf(radius, step / 100.0), 1e-6);
    knots_.push_back({0.0, 0.0, first});
    for (int n = 1; n <= intervals; ++n) {
        const Knot& last = knots_.back();
        const double least = leastSlope * first;
        const double here = radius(n * step);
        const double slope = SlopeOf(radius, n * step);
        // Once it has turned back it never follows the function again.
        rises_ = rises_ && slope >= least && here >= last.radius + least * step;
        knots_.push_back(rises_ ? Knot{n * step, here, slope}
                                : Knot{n * step, last.radius + least * step, least});
    }
}

RadialCurve::Place RadialCurve::At(double radius) const {
    const auto above = std::ranges::upper_bound(knots_, radius, {}, &Knot::radius);
    if (above == knots_.end()) {
        const Knot& last = knots_.back();
        return {last.angle + (radius - last.radius) / last.slope, 1.0 / last.slope};
    }
    const Knot& a = above == knots_.begin() ? *above : *(above - 1);
    const Knot& b = *above;
    const double length = std::max(b.radius - a.radius, 1e-12);
    const double share = (radius - a.radius) / length;
    const double from = length / a.slope;
    const double to = length / b.slope;
    const double step = b.angle - a.angle;
    const double bend = from + to - 2.0 * step;
    const double slope = from + share * (2.0 * (step - from - bend) + 3.0 * share * bend);
    return {Cubic(share, a.angle, b.angle, from, to), slope / length};
}

double RadialCurve::Radius(double angle) const {
    const double step = limit_ / intervals;
    if (!(angle < limit_)) {
        return knots_.back().radius + (angle - limit_) * knots_.back().slope;
    }
    const auto n = static_cast<std::size_t>(std::max(angle, 0.0) / step);
    const Knot& a = knots_[std::min<std::size_t>(n, intervals - 1)];
    const Knot& b = knots_[std::min<std::size_t>(n, intervals - 1) + 1];
    return Cubic((angle - a.angle) / step, a.radius, b.radius, a.slope * step, b.slope * step);
}

Ray LensView::RayAt(const EdgePoint& place) const {
    const double x = place.x - centre.x;
    const double y = place.y - centre.y;
    const double radius = std::hypot(x, y);
    const double angle = curve.At(radius).angle;
    const double aside = radius > 1e-9 ? std::sin(angle) / radius : 0.0;
    return {x * aside, y * aside, std::cos(angle)};
}

EdgePoint LensView::PlaceOf(const Ray& ray) const {
    const double aside = std::hypot(ray.x, ray.y);
    const double stretch = aside > 1e-12 ? curve.Radius(std::atan2(aside, ray.z)) / aside : 0.0;
    return {centre.x + ray.x * stretch, centre.y + ray.y * stretch};
}

LensView ViewOfLens(const SampledLens& lens, double pixelsPerUnit, const EdgePoint& centre) {
    const LensSpline spline(lens);
    const auto radius = [&](double angle) { return pixelsPerUnit * spline.RadiusAt(angle); };
    return {RadialCurve(radius, lens.FieldLimit()), centre};
}

LensView ViewOfFormula(LensKind kind, const LensCurve& curve, double pixelsPerMillimetre,
                       const EdgePoint& centre) {
    const double factor = static_cast<double>(curve.factor);
    const double reach = std::numbers::pi / 2.0 * (kind == LensKind::Sin ? 1.0 / factor : factor);
    const auto radius = [&](double angle) {
        return pixelsPerMillimetre * LensRadius(kind, angle, curve);
    };
    return {RadialCurve(radius, std::min(0.95 * reach, 2.6)), centre};
}

}  // namespace varnel
