// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/preview_size.h"

#include <gtest/gtest.h>

#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

TEST(PreviewSize, FitsBoxAndRoomAndNeverEnlarges) {
    struct {
        PixelSize picture, box, room, expected;
    } const rows[] = {
        {{6000, 4000}, {400, 300}, {2000, 2000}, {400, 267}},
        {{4000, 6000}, {400, 300}, {2000, 2000}, {200, 300}},
        {{200, 100}, {400, 300}, {2000, 2000}, {200, 100}},
        {{6000, 4000}, {400, 300}, {300, 2000}, {300, 200}},
        {{6000, 4000}, {400, 300}, {2000, 150}, {225, 150}},
        {{6000, 4000}, {400, 300}, {5, 5}, {100, 67}},  // the room counts as 100 at least
        {{100, 5}, {10, 10}, {2000, 2000}, {10, 1}},    // 0.5 rounds to 0, and up to one pixel
        {{1000, 1005}, {1000, 1000}, {2000, 2000}, {995, 1000}},
    };
    for (const auto& row : rows) {
        const PixelSize size = PreviewSize(row.picture, row.box, row.room);
        EXPECT_EQ(size.width, row.expected.width) << row.picture.width;
        EXPECT_EQ(size.height, row.expected.height) << row.picture.width;
    }
}

TEST(ReducedCopy, AveragesItsPixels) {
    const BitmapHandle board = testing::Painted({40, 40}, [](int x, int y) {
        const BYTE level = (x + y) % 2 == 0 ? 200 : 100;
        return PixelColor{level, level, level, 0};
    });
    const BitmapHandle small = ReducedCopy(board.get(), {10, 10});
    EXPECT_EQ(SizeOf(small.get()).width, 10);
    EXPECT_NEAR(testing::PixelAt(small.get(), 5, 5).green, 150, 2);
}

}  // namespace
}  // namespace varnel
