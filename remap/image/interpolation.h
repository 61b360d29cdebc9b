// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The interpolating reads, once for everybody: written over a reader, read(x, y) -> colour, that
// gives black off the bitmap. x and y are whole then, but may be anything a double can hold.
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
RGBQUAD BlendLinearX(const Read& read, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return black;
    }
    const double w = LowerWeight(x);
    const double w2 = 1.0 - w;
    const double row = Round(y);
    if (w == 1.0) {
        return read(Round(x), row);
    }
    const RGBQUAD left = read(Int(x), row);
    const RGBQUAD right = read(Int(x + 1.0), row);
    const auto blend = [&](BYTE RGBQUAD::*channel) {
        return static_cast<BYTE>(Int(left.*channel * w + right.*channel * w2));
    };
    return {blend(&RGBQUAD::rgbBlue), blend(&RGBQUAD::rgbGreen), blend(&RGBQUAD::rgbRed), 0};
}

template <class Read>
RGBQUAD BlendBilinear(const Read& read, double x, double y) {
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
    const RGBQUAD a = read(Int(x), Int(y));
    const RGBQUAD b = read(Int(x + 1.0), Int(y));
    const RGBQUAD c = read(Int(x), Int(y + 1.0));
    const RGBQUAD d = read(Int(x + 1.0), Int(y + 1.0));
    const auto blend = [&](BYTE RGBQUAD::*channel) {
        return static_cast<BYTE>(Int(a.*channel * wx * wy + b.*channel * wx2 * wy +
                                     c.*channel * wx * wy2 + d.*channel * wx2 * wy2));
    };
    return {blend(&RGBQUAD::rgbBlue), blend(&RGBQUAD::rgbGreen), blend(&RGBQUAD::rgbRed), 0};
}

}  // namespace varnel
