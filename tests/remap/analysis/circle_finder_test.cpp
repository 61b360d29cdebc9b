// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/circle_finder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varnel {
namespace {

// What a lens draws of a cluttered scene: falling off to the rim, which is some pixels soft.
struct Shot {
    const char* name;
    PixelSize size;
    ImageCircle circle;
    double edge = 1.0;   // brightness at the rim, of the middle's
    double soft = 2.0;   // pixels from light to dark
    double flare = 0.0;  // grey levels of stray light on the lower right
    double dark = 0.0;   // share of the rim, from the left over the top, with nothing bright at it
};

double Scene(double x, double y) {
    const double leaves = std::sin(x / 7.0) * std::sin(y / 11.0) + std::sin((x + 2.0 * y) / 23.0);
    return 150.0 + 45.0 * leaves;
}

GreyPicture Photograph(const Shot& shot) {
    std::mt19937 random(3);
    std::normal_distribution<double> noise(0.0, 2.0);
    GreyPicture picture{shot.size, {}};
    for (int row = 0; row < shot.size.height; ++row) {
        for (int column = 0; column < shot.size.width; ++column) {
            const double x = column + 0.5 - shot.circle.x;
            const double y = row + 0.5 - shot.circle.y;
            const double r = std::hypot(x, y);
            const double inside = std::clamp((shot.circle.radius - r) / shot.soft + 0.5, 0.0, 1.0);
            const double fall = 1.0 - (1.0 - shot.edge) * std::pow(r / shot.circle.radius, 4.0);
            const bool night = std::atan2(y, x) < shot.dark * 6.2832 - 3.1416;
            const double light = Scene(x, y) * fall * inside * (night ? 0.01 : 1.0);
            const double stray = shot.flare * std::exp(-std::hypot(x / shot.circle.radius - 0.8,
                                                                   y / shot.circle.radius - 0.7) /
                                                       0.12);
            picture.values.push_back(static_cast<std::uint8_t>(
                std::clamp(light + stray + 4.0 + noise(random), 0.0, 255.0)));
        }
    }
    return picture;
}

class CircleFinder : public ::testing::TestWithParam<Shot> {};

TEST_P(CircleFinder, IsRightWithinThreeThousandthsOfTheWidth) {
    const Shot& shot = GetParam();
    const auto found = FindImageCircle(Photograph(shot));
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->rough);
    const double tolerance = 0.003 * shot.size.width;
    EXPECT_NEAR(found->x, shot.circle.x, tolerance);
    EXPECT_NEAR(found->y, shot.circle.y, tolerance);
    EXPECT_NEAR(found->radius, shot.circle.radius, tolerance);
    EXPECT_LT(std::fabs(found->radius - shot.circle.radius), 4.0 * found->error + 0.3);
    EXPECT_LT(found->error, 0.01 * shot.circle.radius);
}

INSTANTIATE_TEST_SUITE_P(
    Circles, CircleFinder,
    ::testing::Values(Shot{"Plain", {1000, 667}, {497.3, 340.6, 281.2}},
                      Shot{"Vignetted", {1000, 667}, {510.1, 322.0, 301.7}, 0.35, 6.0},
                      Shot{"Flare", {1000, 667}, {505.0, 330.5, 268.4}, 0.6, 3.0, 160.0},
                      Shot{"CutOffAboveAndBelow", {1000, 667}, {502.9, 328.8, 416.0}, 0.5, 4.0},
                      Shot{"CutOffAtOneSide", {1000, 750}, {430.0, 541.5, 348.0}, 0.5, 3.0},
                      Shot{"DarkQuarter", {800, 800}, {404.0, 396.5, 372.9}, 0.7, 3.0, 0.0, 0.25},
                      Shot{"AllAtOnce", {1000, 667}, {508.9, 320.8, 416.0}, 0.4, 5.0, 90.0, 0.1},
                      Shot{"Upright", {667, 1000}, {330.0, 515.2, 292.6}, 0.5, 3.0}),
    [](const auto& shot) { return shot.param.name; });

TEST(CircleFinder, FindsNoneWhereTheLensFillsTheFrame) {
    const Shot full{"", {1000, 667}, {500.0, 333.0, 640.0}, 0.3, 3.0};
    EXPECT_FALSE(FindImageCircle(Photograph(full)));
    EXPECT_FALSE(FindImageCircle({{1000, 667}, std::vector<std::uint8_t>(667000, 30)}));
    EXPECT_FALSE(FindImageCircle({{40, 40}, std::vector<std::uint8_t>(1600, 30)}));
    EXPECT_FALSE(FindImageCircle({}));
}

// A wood from below: sky between leaves up to a height, black trees to the rim, which glints here
// and there.
GreyPicture Wood(double sky) {
    const ImageCircle circle{512.0, 381.0, 310.0};
    GreyPicture picture{{1000, 750}, {}};
    for (int row = 0; row < 750; ++row) {
        for (int column = 0; column < 1000; ++column) {
            const double x = column + 0.5 - circle.x;
            const double y = row + 0.5 - circle.y;
            const double r = std::hypot(x, y) / circle.radius;
            const double turn = std::atan2(y, x) + 3.1416;
            const bool glint = r > 0.992 && r < 1.0 && std::fmod(turn, 2.1) < 0.4;
            picture.values.push_back(r < sky && Scene(x, y) > 170.0 ? 200 : glint ? 5 : 0);
        }
    }
    picture.values[40 * 1000 + 700] = 90;  // a hot pixel
    return picture;
}

TEST(CircleFinder, HoldsAllLightWhereTheRimIsDark) {
    const auto found = FindImageCircle(Wood(0.93));
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->rough);
    EXPECT_NEAR(found->x, 512.0, 3.0);
    EXPECT_NEAR(found->y, 381.0, 3.0);
    EXPECT_NEAR(found->radius, 310.0, 3.0);
    EXPECT_FALSE(FindImageCircle(Wood(0.3))) << "a lamp";
}

}  // namespace
}  // namespace varnel
