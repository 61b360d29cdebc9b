// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/sampling.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

using testing::Painted;
using testing::operator==;

PixelColor Grey(int level) {
    const auto byte = static_cast<BYTE>(level);
    return {byte, byte, byte, 0};
}

// Black, then white from column 4 on; row 3 is white throughout.
BitmapHandle Edge() {
    return Painted({8, 8}, [](int x, int y) { return Grey(x >= 4 || y == 3 ? 255 : 0); });
}

TEST(PixelAccess, OffTheBitmapNothingIsReadOrWritten) {
    const BitmapHandle bitmap = Edge();
    PixelColor colour{9, 8, 7, 6};
    for (const auto& [x, y] : {std::pair{8, 0}, {0, 8}, {-1, 0}, {0, -1}}) {
        EXPECT_FALSE(GetPixelColor(bitmap.get(), x, y, colour));
        EXPECT_FALSE(SetPixelColor(bitmap.get(), x, y, colour));
    }
    EXPECT_EQ(colour.blue, 9);
    EXPECT_TRUE(GetPixelColor(bitmap.get(), 7, 7, colour));
    EXPECT_EQ(colour.blue, 255);
}

TEST(SampleNearest, TiesGoToEven) {
    const BitmapHandle bitmap = Edge();
    EXPECT_EQ(SampleNearest(bitmap.get(), 3.5, 0.0).red, 255);
    EXPECT_EQ(SampleNearest(bitmap.get(), 2.5, 0.0).red, 0);
    EXPECT_EQ(SampleNearest(bitmap.get(), 0.0, 2.5).red, 0);
    EXPECT_EQ(SampleNearest(bitmap.get(), 7.6, 0.0).red, 0);
}

TEST(SampleLinearX, BlendsTwoNeighboursAndRoundsDown) {
    const BitmapHandle bitmap = Edge();
    EXPECT_EQ(SampleLinearX(bitmap.get(), 3.25, 0.0).green, 63);
    EXPECT_EQ(SampleLinearX(bitmap.get(), 3.25, 3.4).green, 255);  // whole row 3
    EXPECT_EQ(SampleLinearX(bitmap.get(), 4.0, 0.0).green, 255);
    EXPECT_EQ(SampleLinearX(bitmap.get(), 7.5, 0.0).green, 127);  // right of the edge: black
    EXPECT_EQ(SampleLinearX(bitmap.get(), -0.5, 3.0).green, 127);
}

TEST(SampleBilinear, WholePositionsGiveThePixelItself) {
    const BitmapHandle bitmap = testing::PositionPicture({20, 30});
    const PixelLevels colour = SampleBilinear(bitmap.get(), 10.0, 20.0);
    EXPECT_TRUE((colour == PixelLevels{10.0, 20.0, 7.0, 0.0}));
}

TEST(SampleBilinear, WeighsFourNeighbours) {
    const BitmapHandle bitmap =
        Painted({2, 2}, [](int x, int y) { return Grey(100 * x + 50 * y); });
    EXPECT_EQ(SampleBilinear(bitmap.get(), 0.25, 0.5).blue, 50);
    EXPECT_EQ(SampleBilinear(bitmap.get(), 0.99, 0.0).blue, 99);
}

TEST(SampleBilinear, DarkensTowardTheEdge) {
    const BitmapHandle bitmap = Painted({4, 8}, [](int, int) { return Grey(255); });
    EXPECT_EQ(SampleBilinear(bitmap.get(), -0.5, 5.5).red, 127);
    EXPECT_EQ(SampleBilinear(bitmap.get(), 3.5, 7.5).red, 63);
    EXPECT_EQ(SampleBilinear(bitmap.get(), -1.0, 5.5).red, 0);
}

TEST(Sampling, PositionsBeyondWholeNumbersAreBlack) {
    const BitmapHandle bitmap = Painted({4, 4}, [](int, int) { return Grey(255); });
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double x : {3e9, -3e9, 1e300, infinity, -infinity, std::nan("")}) {
        for (const auto sample : {&SampleNearest, &SampleLinearX, &SampleBilinear}) {
            EXPECT_TRUE(sample(bitmap.get(), x, 1.0) == noLight) << x;
            EXPECT_TRUE(sample(bitmap.get(), 1.0, x) == noLight) << x;
        }
    }
}

}  // namespace
}  // namespace varnel
