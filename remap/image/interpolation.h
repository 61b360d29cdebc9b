// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The interpolating reads, in one place: written over a reader, read(x, y) -> levels, that gives no
// light off the bitmap. x and y are whole then, but may be anything a double can hold. What they
// return is described in sampling.h, but not rounded. Throws what the reader throws.
#pragma once

#include <cmath>

#include "base/rounding.h"
#include "remap/image/levels/pixel_levels.h"

namespace varnel {

// The weight of the lower neighbour; the upper one has the rest.
inline double LowerWeight(double position) {
    return Int(position) + 1.0 - position;
}

template <class Read>
PixelLevels BlendLinearX(const Read& read, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return noLight;
    }
    const double w = LowerWeight(x);
    const double w2 = 1.0 - w;
    const double row = Round(y);
    if (w == 1.0) {
        return read(Round(x), row);
    }
    const PixelLevels left = read(Int(x), row);
    const PixelLevels right = read(Int(x + 1.0), row);
    const auto blend = [&](double PixelLevels::*level) {
        return left.*level * w + right.*level * w2;
    };
    return {blend(&PixelLevels::blue), blend(&PixelLevels::green), blend(&PixelLevels::red),
            blend(&PixelLevels::alpha)};
}

template <class Read>
PixelLevels BlendBilinear(const Read& read, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return noLight;
    }
    const double wx = LowerWeight(x);
    const double wx2 = 1.0 - wx;
    const double wy = LowerWeight(y);
    const double wy2 = 1.0 - wy;
    if (wx == 1.0 && wy == 1.0) {
        return read(Round(x), Round(y));
    }
    const PixelLevels a = read(Int(x), Int(y));
    const PixelLevels b = read(Int(x + 1.0), Int(y));
    const PixelLevels c = read(Int(x), Int(y + 1.0));
    const PixelLevels d = read(Int(x + 1.0), Int(y + 1.0));
    const auto blend = [&](double PixelLevels::*level) {
        return a.*level * wx * wy + b.*level * wx2 * wy + c.*level * wx * wy2 +
               d.*level * wx2 * wy2;
    };
    return {blend(&PixelLevels::blue), blend(&PixelLevels::green), blend(&PixelLevels::red),
            blend(&PixelLevels::alpha)};
}

}  // namespace varnel
