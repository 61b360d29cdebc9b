// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/area_average.h"

#include <gtest/gtest.h>

#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

// A row of 0, 40, 80 ... in blue; green and red are other multiples.
BitmapHandle Steps() {
    return testing::Painted({6, 3}, [](int x, int y) {
        return PixelColor{static_cast<BYTE>(40 * x), static_cast<BYTE>(100 * y),
                          static_cast<BYTE>(10 * x + y), 0};
    });
}

TEST(AverageAreas, WeighsWhatAPixelCovers) {
    struct Case {
        AreaAxis across;
        std::vector<int> blue;
    };
    const Case cases[] = {
        {{0.0, 1.0}, {0, 40, 80, 120, 160, 200}},
        {{0.0, 2.0}, {20, 100, 180}},
        {{0.0, 1.5}, {13, 67, 133, 187}},   // (0 + 40 / 2) / 1.5 and so on
        {{-0.5, 2.0}, {13, 80, 160}},       // 1.5 of it on the picture
        {{0.25, 2.0}, {30, 110, 183}},      // the last reaches over the edge
        {{0.5, 0.25}, {0, 0, 40, 40, 40}},  // enlarged: squares
    };
    const BitmapHandle source = Steps();
    for (const Case& c : cases) {
        const BitmapHandle target = NewBitmap({static_cast<int>(c.blue.size()), 1});
        SerialRunner serial;
        AverageAreas(*source, {c.across, {0.5, 2.0}}, *target, serial);
        for (int x = 0; x < target->Size().width; ++x) {
            EXPECT_NEAR(testing::PixelAt(target.get(), x, 0).blue,
                        c.blue[static_cast<std::size_t>(x)], 1)
                << c.across.start << " " << c.across.step << " " << x;
            EXPECT_EQ(testing::PixelAt(target.get(), x, 0).green, 100);
        }
    }
}

}  // namespace
}  // namespace varnel
