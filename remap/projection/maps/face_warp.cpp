// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/face_warp.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "remap/projection/rays.h"

namespace varnel {

namespace {

constexpr double usualMargin = 2.2;  // levels
constexpr double leastMargin = 1.1;

// The plane's form x' M x of an ellipse, which is the square of the level.
struct Form {
    double xx = 0.0, xy = 0.0, yy = 0.0;

    explicit Form(const PlaneEllipse& ellipse) {
        const double across = 1.0 / (ellipse.halfWidth * ellipse.halfWidth);
        const double up = 1.0 / (ellipse.halfHeight * ellipse.halfHeight);
        const double c = ellipse.cosine;
        const double s = ellipse.sine;
        xx = c * c * across + s * s * up;
        xy = c * s * (across - up);
        yy = s * s * across + c * c * up;
    }
    PlanePoint Times(const PlanePoint& p) const {
        return {xx * p.x + xy * p.y, xy * p.x + yy * p.y};
    }
};

// Where the weighted sum of both squared levels is the least.
PlanePoint Between(const PlaneEllipse& one, const PlaneEllipse& other, double weight) {
    const Form a(one);
    const Form b(other);
    const PlanePoint p = a.Times(one.middle);
    const PlanePoint q = b.Times(other.middle);
    const double u = 1.0 - weight;
    const double xx = u * a.xx + weight * b.xx;
    const double xy = u * a.xy + weight * b.xy;
    const double yy = u * a.yy + weight * b.yy;
    const PlanePoint sum{u * p.x + weight * q.x, u * p.y + weight * q.y};
    const double determinant = xx * yy - xy * xy;
    return {(yy * sum.x - xy * sum.y) / determinant, (xx * sum.y - xy * sum.x) / determinant};
}

Ray RayThrough(const PlanePoint& point) {
    return Unit({point.x, point.y, 1.0});
}

Ray Sum(double a, const Ray& one, double b, const Ray& other) {
    return {a * one.x + b * other.x, a * one.y + b * other.y, a * one.z + b * other.z};
}

bool HasArea(const PlaneEllipse& ellipse) {
    constexpr double largest = 1e6;
    return ellipse.halfWidth > 0.0 && ellipse.halfHeight > 0.0 && ellipse.halfWidth < largest &&
           ellipse.halfHeight < largest && std::fabs(ellipse.middle.x) < largest &&
           std::fabs(ellipse.middle.y) < largest && std::isfinite(ellipse.cosine);
}

// How far an ellipse may reach beyond itself without meeting the growing others.
double MarginAmong(std::span<const PlaneEllipse> all, std::size_t n) {
    double margin = usualMargin;
    for (std::size_t other = 0; other < all.size(); ++other) {
        if (other != n && HasArea(all[other])) {
            margin = std::min(margin, RoomBetween(all[n], all[other]));
        }
    }
    return std::max(margin, leastMargin);
}

}  // namespace

double PlaneEllipse::LevelAt(const PlanePoint& point) const {
    const double x = point.x - middle.x;
    const double y = point.y - middle.y;
    const double across = (cosine * x + sine * y) / halfWidth;
    const double up = (cosine * y - sine * x) / halfHeight;
    return std::sqrt(across * across + up * up);
}

PlanePoint PlaneEllipse::PointAt(double level, double direction) const {
    const double x = level * halfWidth * std::cos(direction);
    const double y = level * halfHeight * std::sin(direction);
    return {middle.x + cosine * x - sine * y, middle.y + sine * x + cosine * y};
}

// They touch where both levels are the same and their sum cannot be less.
double RoomBetween(const PlaneEllipse& one, const PlaneEllipse& other) {
    double low = 0.0;
    double high = 1.0;
    for (int step = 0; step < 50; ++step) {
        const double weight = (low + high) / 2.0;
        const PlanePoint point = Between(one, other, weight);
        (one.LevelAt(point) < other.LevelAt(point) ? low : high) = weight;
    }
    return one.LevelAt(Between(one, other, low));
}

// The straight view draws 1 / cosine^2 plane units for a radian away from the axis and 1 / cosine
// for one around it; the mean of the two keeps the area.
FaceWarp::FaceWarp(const PlaneEllipse& ellipse, double margin)
    : ellipse_(ellipse),
      margin_(margin),
      perLogarithm_(1.0 / std::log(margin)),
      scale_(1.0),
      forward_(RayThrough(ellipse.middle)) {
    const double side = std::hypot(forward_.x, forward_.y);
    const double c = side > 0.0 ? forward_.x / side : 1.0;
    const double s = side > 0.0 ? forward_.y / side : 0.0;
    const Ray outward{forward_.z * c, forward_.z * s, -side};
    const Ray around{-s, c, 0.0};
    across_ = Sum(c, outward, -s, around);
    up_ = Sum(s, outward, c, around);
    scale_ = std::pow(forward_.z, -1.5);
}

// A larger scale needs less room around the ellipse: beyond some size the border no longer reaches
// past what the straight view has there.
std::optional<FaceWarp> FaceWarp::Of(const PlaneEllipse& ellipse, double margin) {
    if (!HasArea(ellipse)) {
        return std::nullopt;
    }
    constexpr int steps = 30;
    constexpr double larger = 1.1;
    FaceWarp warp(ellipse, margin);
    for (int step = 0; step < steps; ++step) {
        if (!warp.Folds()) {
            return warp;
        }
        warp.scale_ *= larger;
    }
    return std::nullopt;
}

// 1 inside, 0 from the margin on, without a corner in any derivative.
double FaceWarp::ShareAt(double level) const {
    if (level <= 1.0) {
        return 1.0;
    }
    const double along = std::log(level) * perLogarithm_;
    return 1.0 / (1.0 + std::exp(1.0 / (1.0 - along) - 1.0 / along));
}

PlanePoint FaceWarp::At(const PlanePoint& point) const {
    const double level = ellipse_.LevelAt(point);
    if (!(level < margin_)) {
        return point;
    }
    const double share = ShareAt(level);
    const Ray straight = RayThrough(point);
    const double view = (1.0 - share) * 2.0 * scale_ / (1.0 + Dot(straight, forward_));
    const double x = share * (point.x - ellipse_.middle.x) + view * Dot(straight, across_);
    const double y = share * (point.y - ellipse_.middle.y) + view * Dot(straight, up_);
    const double away = (x * x + y * y) / (4.0 * scale_ * scale_);
    const Ray ray = Sum(1.0, Sum(x / scale_, across_, y / scale_, up_), 1.0 - away, forward_);
    if (!(ray.z > 0.0)) {
        constexpr double none = std::numeric_limits<double>::quiet_NaN();
        return {none, none};
    }
    return {ray.x / ray.z, ray.y / ray.z};
}

double FaceWarp::StretchAt(const PlanePoint& point) const {
    const double h = 1e-5 * std::min(ellipse_.halfWidth, ellipse_.halfHeight);
    const PlanePoint right = At({point.x + h, point.y});
    const PlanePoint left = At({point.x - h, point.y});
    const PlanePoint above = At({point.x, point.y + h});
    const PlanePoint below = At({point.x, point.y - h});
    return ((right.x - left.x) * (above.y - below.y) - (right.y - left.y) * (above.x - below.x)) /
           (4.0 * h * h);
}

// The view is straight on the border of the margin and whole inside of the ellipse, so it is one to
// one where no area between the two turns over. With this many places looked at and this much left
// at each, none does on dense nets over thousands of ellipses.
bool FaceWarp::Folds() const {
    constexpr int directions = 64;
    constexpr int rings = 24;
    const double least = 0.2 * std::pow(forward_.z, -3.0) / (scale_ * scale_);
    for (int ring = 0; ring <= rings; ++ring) {
        const double level = std::pow(margin_, static_cast<double>(ring) / rings);
        for (int n = 0; n < directions; ++n) {
            const double direction = 2.0 * std::numbers::pi * n / directions;
            if (!(StretchAt(ellipse_.PointAt(level, direction)) > least)) {
                return true;
            }
        }
    }
    return false;
}

FaceWarps::FaceWarps(std::span<const PlaneEllipse> ellipses) {
    for (std::size_t n = 0; n < ellipses.size(); ++n) {
        if (!HasArea(ellipses[n])) {
            continue;
        }
        if (const auto warp = FaceWarp::Of(ellipses[n], MarginAmong(ellipses, n))) {
            warps_.push_back(*warp);
        }
    }
}

bool FaceWarps::IsFine(const PlanePoint& point, double step) const {
    constexpr double enough = 6.0;  // nodes
    constexpr double reach = 3.0;
    for (const FaceWarp& warp : warps_) {
        const double narrow = std::min(warp.Ellipse().halfWidth, warp.Ellipse().halfHeight);
        if ((warp.Margin() - 1.0) * narrow < enough * step &&
            warp.Ellipse().LevelAt(point) < warp.Margin() + reach * step / narrow) {
            return true;
        }
    }
    return false;
}

}  // namespace varnel
