// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/view_bend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace varnel {

namespace {

constexpr double halfWidth = 3000.0;
constexpr double halfHeight = 2000.0;

// The largest departure from the straight line that fits the points best; they lie along x.
double Bend(const std::vector<EdgePoint>& points) {
    const double count = static_cast<double>(points.size());
    double x = 0.0, y = 0.0, xx = 0.0, xy = 0.0;
    for (const EdgePoint& point : points) {
        x += point.x / count;
        y += point.y / count;
    }
    for (const EdgePoint& point : points) {
        xx += (point.x - x) * (point.x - x);
        xy += (point.x - x) * (point.y - y);
    }
    double most = 0.0;
    for (const EdgePoint& point : points) {
        most = std::max(most, std::fabs(point.y - y - (point.x - x) * xy / xx));
    }
    return most;
}

}  // namespace

double ViewBend(const LensView& drawn, const LensView& used) {
    const double focal = halfWidth / std::tan(55.0 * std::numbers::pi / 180.0);
    constexpr int steps = 40;
    double most = 0.0;
    for (const bool upright : {false, true}) {
        const double length = upright ? halfHeight : halfWidth;
        const double aside = upright ? halfWidth : halfHeight;
        for (const double share : {-1.0, -0.5, 0.5, 1.0}) {
            std::vector<EdgePoint> line;
            for (int n = -steps; n <= steps; ++n) {
                const double along = length * n / steps;
                const Ray ray =
                    upright ? Ray{share * aside, along, focal} : Ray{along, share * aside, focal};
                const Ray seen = used.RayAt(drawn.PlaceOf(ray));
                const double depth = std::max(seen.z, 0.05);
                const EdgePoint place{focal * seen.x / depth, focal * seen.y / depth};
                line.push_back(upright ? EdgePoint{place.y, place.x} : place);
            }
            most = std::max(most, Bend(line));
        }
    }
    return most;
}

}  // namespace varnel
