// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/scene.h"

#include <gtest/gtest.h>

#include <cmath>

#include "samples/fisheye_shot.h"
#include "samples/texture.h"
#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

double Brightness(const Colour& colour) {
    return (colour.red + colour.green + colour.blue) / 3.0;
}

TEST(LookAt, KnowsUpFromDownAndLeftFromRight) {
    // Through the window: hills and sky above eye level, paving below it.
    EXPECT_GT(LookAt({0.0, 0.2, 1.0}).blue, LookAt({0.0, 0.2, 1.0}).red);
    EXPECT_GT(Brightness(LookAt({0.0, 0.2, 1.0})), Brightness(LookAt({-0.1, -0.2, 1.0})) + 60.0);
    // The door on the left is green, the books' case on the right is brown.
    const Colour door = LookAt({-2.4, -0.48, -0.55});
    EXPECT_GT(door.green, door.red + 20.0);
    const Colour shelf = LookAt({2.08, 0.26, 1.0});
    EXPECT_GT(shelf.red, shelf.blue + 20.0);
}

// The curtain rail is 0.06 m high, 1 m above the eye and 2.6 m ahead: 76.9 to 81.5 pixels above the
// centre of a pinhole view with 200 pixels to the image plane, in every column.
TEST(LookAt, TheRailAboveTheWindowIsStraightAndLevelInAPinholeView) {
    const BitmapHandle view = TakeView(LookAt, {201, 201}, 1, [](double x, double y) {
        return Ray{x - 100.0, y - 100.0, 200.0};
    });
    for (int x = 0; x <= 200; ++x) {
        EXPECT_GT(testing::PixelAt(view.get(), x, 175).red, 140) << x;
        for (int y = 178; y <= 180; ++y) {
            EXPECT_LT(testing::PixelAt(view.get(), x, y).red, 100) << x << " " << y;
        }
        EXPECT_GT(testing::PixelAt(view.get(), x, 183).red, 140) << x;
    }
}

TEST(Levels, PaperIsLightAndNothingIsCut) {
    EXPECT_NEAR(sample::Levels(sample::Paint(100, 150, 60)).green, 150.0, 1e-9);
    double last = 0.0;
    for (double light = 0.1; light < 20.0; light *= 1.3) {
        const double level = sample::Levels({light, light, light}).red;
        EXPECT_GT(level, last);
        EXPECT_LT(level, 255.0);
        last = level;
    }
}

}  // namespace
}  // namespace varnel
