// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The one job that every tool is given: a photo of a 15 mm equisolid fisheye on a frame 36 mm wide,
// shown as a straight-line view 90 degrees across and just as large.
#pragma once

#include <cmath>

namespace varnel::bench {

inline constexpr double focalLength = 15.0;  // millimetres
inline constexpr double frameWidth = 36.0;   // millimetres

// Both in pixels; the view's is half its width, because tan 45 degrees is 1.
inline double SourceFocal(int width) {
    return focalLength * width / frameWidth;
}
inline double ViewFocal(int width) {
    return width / 2.0;
}

// How much nearer to the centre the photo shows what the view shows at (x, y) from its centre.
inline double Shrink(double x, double y, int width) {
    const double r = std::sqrt(x * x + y * y);
    if (r == 0.0) {
        return 1.0;
    }
    const double theta = std::atan(r / ViewFocal(width));
    return 2.0 * SourceFocal(width) * std::sin(theta / 2.0) / r;
}

}  // namespace varnel::bench
