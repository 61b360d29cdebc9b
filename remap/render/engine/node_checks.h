// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What can be told from the six nodes around a piece of a run, p[0] to p[5], of which p[2] and p[3]
// are its ends. Throws nothing.
#pragma once

#include <algorithm>
#include <cmath>

namespace varnel {

// Whether the polynomial between p[2] and p[3] can stand for the map that has these nodes. A cubic
// would miss a smooth map by 0.0234 times the fourth difference; the two degrees more leave of that
// a few hundredths. At a corner of the map the difference is large: beyond the limit. False for
// numbers that are none.
inline bool Smooth(const double* p, double limit) {
    const double third0 = p[3] - p[0] - 3.0 * (p[2] - p[1]);
    const double third1 = p[4] - p[1] - 3.0 * (p[3] - p[2]);
    const double third2 = p[5] - p[2] - 3.0 * (p[4] - p[3]);
    return std::fabs(third1 - third0) < limit && std::fabs(third2 - third1) < limit &&
           std::fabs(p[2]) < 1e6 && std::fabs(p[3]) < 1e6;
}

enum class Shown { All, None, Part };

// What is shown between w[2] and w[3], see NodeValues: what bends less than it is away from 0 does
// not reach 0 in between.
inline Shown ShownBetween(const double* w) {
    constexpr double rounding = 1e-7;
    const double bend = rounding + std::max(std::fabs(w[1] - 2.0 * w[2] + w[3]),
                                            std::fabs(w[2] - 2.0 * w[3] + w[4]));
    if (std::min(w[2], w[3]) > bend) {
        return Shown::All;
    }
    return std::max(w[2], w[3]) < -bend ? Shown::None : Shown::Part;
}

}  // namespace varnel
