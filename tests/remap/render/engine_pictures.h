// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures that show how far the engine is from the plain loops, and the comparison.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "tests/support/bitmaps.h"

namespace varnel::testing {

using Painter = BitmapHandle (*)(PixelSize);

// A picture with soft tones, texture and edges, as photos have.
inline BitmapHandle PhotoLike(PixelSize size) {
    static std::map<std::pair<int, int>, BitmapHandle> painted;
    BitmapHandle& picture = painted[{size.width, size.height}];
    if (!picture) {
        picture = Painted(size, [](int x, int y) {
            const double wave = 60.0 * std::sin(x * 0.05) + 50.0 * std::cos(y * 0.037 + x * 0.011);
            const double edge = (x / 23 + y / 17) % 2 == 0 ? 30.0 : 0.0;
            const double grain = ((x * 73 + y * 151) % 29) - 14.0;
            const auto level = [&](double base) {
                return static_cast<BYTE>(std::clamp(base + wave + edge + grain, 0.0, 255.0));
            };
            return PixelColor{level(110.0), level(130.0), level(90.0), 0};
        });
    }
    return CloneBitmap(picture.get());
}

inline BitmapHandle Flat(PixelSize size) {
    return Painted(size, [](int, int) { return PixelColor{200, 200, 200, 0}; });
}

// Soft tones, one level up and down from pixel to pixel: what is rounded the wrong way shows. No
// two neighbours are equal, because between such the plain loops' own rounding is a matter of luck.
inline BitmapHandle Soft(PixelSize size) {
    return Painted(size, [](int x, int y) {
        const auto level = [&](double base, double bend) {
            const long even = 2 * std::lround(base + 25.0 * std::sin((x + 0.6 * y) * bend));
            return static_cast<BYTE>(even + (x + y) % 2);
        };
        return PixelColor{level(85.0, 0.03), level(65.0, 0.02), level(45.0, 0.05), 0};
    });
}

struct Difference {
    int largest = 0;
    double share = 0.0;  // of all channel values
};

inline Difference Compare(const Bitmap* a, const Bitmap* b) {
    Difference difference;
    const PixelSize size = SizeOf(a);
    EXPECT_EQ(size.width, SizeOf(b).width);
    EXPECT_EQ(size.height, SizeOf(b).height);
    long apart = 0;
    for (int y = 0; y < size.height; ++y) {
        const auto rowA = ScanLine(a, y);
        const auto rowB = ScanLine(b, y);
        for (std::size_t n = 0; n < static_cast<std::size_t>(size.width) * 3; ++n) {
            const int distance = std::abs(rowA[n] - rowB[n]);
            difference.largest = std::max(difference.largest, distance);
            apart += distance != 0 ? 1 : 0;
        }
    }
    difference.share = static_cast<double>(apart) / (3.0 * size.width * size.height);
    return difference;
}

}  // namespace varnel::testing
