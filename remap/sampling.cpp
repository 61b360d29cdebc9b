// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/sampling.h"

#include <cmath>

#include "remap/rounding.h"

namespace varnel {

namespace {

// x and y are whole.
RGBQUAD PixelOrBlack(FIBITMAP* bitmap, double x, double y) {
    RGBQUAD colour = black;
    const std::optional<std::int32_t> column = PixelIndex(x);
    const std::optional<std::int32_t> row = PixelIndex(y);
    if (column && row) {
        GetPixelColor(bitmap, *column, *row, colour);
    }
    return colour;
}

// The weight of the lower neighbour; the upper one has the rest.
double LowerWeight(double position) {
    return Int(position) + 1.0 - position;
}

}  // namespace

RGBQUAD SampleNearest(FIBITMAP* bitmap, double x, double y) {
    return PixelOrBlack(bitmap, Round(x), Round(y));
}

RGBQUAD SampleLinearX(FIBITMAP* bitmap, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return black;
    }
    const double w = LowerWeight(x);
    const double w2 = 1.0 - w;
    const double row = Round(y);
    if (w == 1.0) {
        return PixelOrBlack(bitmap, Round(x), row);
    }
    const RGBQUAD left = PixelOrBlack(bitmap, Int(x), row);
    const RGBQUAD right = PixelOrBlack(bitmap, Int(x + 1.0), row);
    const auto blend = [&](BYTE RGBQUAD::*channel) {
        return static_cast<BYTE>(Int(left.*channel * w + right.*channel * w2));
    };
    return {blend(&RGBQUAD::rgbBlue), blend(&RGBQUAD::rgbGreen), blend(&RGBQUAD::rgbRed), 0};
}

RGBQUAD SampleBilinear(FIBITMAP* bitmap, double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return black;
    }
    const double wx = LowerWeight(x);
    const double wx2 = 1.0 - wx;
    const double wy = LowerWeight(y);
    const double wy2 = 1.0 - wy;
    if (wx == 1.0 && wy == 1.0) {
        return PixelOrBlack(bitmap, Round(x), Round(y));
    }
    const RGBQUAD a = PixelOrBlack(bitmap, Int(x), Int(y));
    const RGBQUAD b = PixelOrBlack(bitmap, Int(x + 1.0), Int(y));
    const RGBQUAD c = PixelOrBlack(bitmap, Int(x), Int(y + 1.0));
    const RGBQUAD d = PixelOrBlack(bitmap, Int(x + 1.0), Int(y + 1.0));
    const auto blend = [&](BYTE RGBQUAD::*channel) {
        return static_cast<BYTE>(Int(a.*channel * wx * wy + b.*channel * wx2 * wy +
                                     c.*channel * wx * wy2 + d.*channel * wx2 * wy2));
    };
    return {blend(&RGBQUAD::rgbBlue), blend(&RGBQUAD::rgbGreen), blend(&RGBQUAD::rgbRed), 0};
}

}  // namespace varnel
