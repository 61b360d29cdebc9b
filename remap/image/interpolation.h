// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The interpolating reads, in one place: written over a reader, read(x, y) -> colour, that gives
// black off the bitmap. x and y are whole then, but may be anything a double can hold. What they
// return is described in sampling.h. Throws what the reader throws.
#pragma once

#include <cmath>

#include "base/rounding.h"
#include "remap/image/pixel_access.h"

namespace varnel {

// The weight of the lower neighbour; the upper one has the rest.
inline double LowerWeight(double position) {
    return Int(position) + 1.0 - position;
}

template <class Read>
PixelColor BlendLinearX(const Read& read, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return black;
    }
    const double w = LowerWeight(x);
    const double w2 = 1.0 - w;
    const double row = Round(y);
    if (w == 1.0) {
        return read(Round(x), row);
    }
    const PixelColor left = read(Int(x), row);
    const PixelColor right = read(Int(x + 1.0), row);
    const auto blend = [&](std::uint8_t PixelColor::*channel) {
        return static_cast<std::uint8_t>(Int(left.*channel * w + right.*channel * w2));
    };
    return {blend(&PixelColor::blue), blend(&PixelColor::green), blend(&PixelColor::red), 0};
}

template <class Read>
PixelColor BlendBilinear(const Read& read, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return black;
    }
    const double wx = LowerWeight(x);
    const double wx2 = 1.0 - wx;
    const double wy = LowerWeight(y);
    const double wy2 = 1.0 - wy;
    if (wx == 1.0 && wy == 1.0) {
        return read(Round(x), Round(y));
    }
    const PixelColor a = read(Int(x), Int(y));
    const PixelColor b = read(Int(x + 1.0), Int(y));
    const PixelColor c = read(Int(x), Int(y + 1.0));
    const PixelColor d = read(Int(x + 1.0), Int(y + 1.0));
    const auto blend = [&](std::uint8_t PixelColor::*channel) {
        return static_cast<std::uint8_t>(Int(a.*channel * wx * wy + b.*channel * wx2 * wy +
                                             c.*channel * wx * wy2 + d.*channel * wx2 * wy2));
    };
    return {blend(&PixelColor::blue), blend(&PixelColor::green), blend(&PixelColor::red), 0};
}

}  // namespace varnel
