// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A rising curve through given points: cubic between them, never turning back.
#pragma once

#include <span>
#include <vector>

namespace varnel {

class CurveThrough {
  public:
    // Angles in degrees, rising from 0 to at most 180, and radii, rising from 0, as many. Throws
    // CallError for others.
    CurveThrough(std::span<const double> degrees, std::span<const double> radii);

    // The radius at an angle in radians from 0 to Limit().
    double At(double angle) const;
    double Limit() const { return points_.back().angle; }

  private:
    struct Point {
        double angle = 0.0, radius = 0.0;
        double slope = 0.0;  // radius by radian
    };
    std::vector<Point> points_;
};

}  // namespace varnel
