// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Circles through points and near them. Points as in circle_finder.h. Fitted throws std::bad_alloc,
// the rest nothing.
#pragma once

#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "remap/analysis/rough_circle.h"

namespace varnel {

// A place on the rim, to a fraction of a pixel.
struct RimPoint {
    double angle = 0.0;  // around the centre, radians
    double x = 0.0;
    double y = 0.0;
};

// Pixels from the circle, positive outside.
inline double Residual(const RimPoint& point, const ImageCircle& circle) {
    return Length(point.x - circle.x, point.y - circle.y) - circle.radius;
}

// Of so many equal sides around, the one that lies in that direction.
inline std::size_t SideOf(double across, double down, std::size_t sides) {
    const double turn = (std::atan2(down, across) / std::numbers::pi + 1.0) / 2.0;
    return static_cast<std::size_t>(turn * static_cast<double>(sides)) % sides;
}

// Nothing when they are all but in line.
template <class Point>
std::optional<ImageCircle> Through(const Point& a, const Point& b, const Point& c) {
    const double bx = b.x - a.x;
    const double by = b.y - a.y;
    const double cx = c.x - a.x;
    const double cy = c.y - a.y;
    const double area = 2.0 * (bx * cy - by * cx);
    if (std::fabs(area) < 1.0) {
        return std::nullopt;
    }
    const double bb = bx * bx + by * by;
    const double cc = cx * cx + cy * cy;
    const double x = (cy * bb - by * cc) / area;
    const double y = (bx * cc - cx * bb) / area;
    return ImageCircle{a.x + x, a.y + y, Length(x, y)};
}

// One weighted Gauss-Newton step toward the circle of least distances; far points do not count.
ImageCircle Fitted(const std::vector<RimPoint>& rim, const ImageCircle& circle);

// About one standard deviation of centre and radius of a circle that was fitted to the rim, pixels:
// by how much they change when an eighth of the directions is left out, so that a rim of which only
// a part is on the picture counts as what it is.
double FitError(const std::vector<RimPoint>& rim, const ImageCircle& circle);

}  // namespace varnel
