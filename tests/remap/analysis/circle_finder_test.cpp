// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/circle_finder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
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
    EXPECT_LT(std::fabs(found->radius - shot.circle.radius), 3.0 * found->error);
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

double Between(std::mt19937& random, double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
}

// Rims of all kinds at random: dark, soft, cut off, with stray light and lightless stretches.
TEST(CircleFinder, IsOffByLessThanThreeThousandthsMostly) {
    std::mt19937 random(7);
    constexpr PixelSize sizes[] = {{700, 700}, {900, 600}, {800, 600}, {600, 900}};
    std::vector<double> errors;
    std::vector<double> shares;
    for (int n = 0; n < 40; ++n) {
        const PixelSize size = sizes[n % 4];
        const double side = std::min(size.width, size.height);
        const double offX = Between(random, -0.04, 0.04) * side;
        const double offY = Between(random, -0.04, 0.04) * side;
        const double radius = side * Between(random, 0.38, n % 5 == 0 ? 0.6 : 0.49);
        const Shot shot{"",
                        size,
                        {size.width / 2.0 + offX, size.height / 2.0 + offY, radius},
                        Between(random, 0.15, 1.0),
                        Between(random, 1.0, 6.0),
                        n % 3 == 0 ? Between(random, 30.0, 140.0) : 0.0,
                        n % 2 == 0 ? Between(random, 0.0, 0.4) : 0.0};
        const auto found = FindImageCircle(Photograph(shot));
        ASSERT_TRUE(found) << n;
        errors.push_back(std::fabs(found->radius - radius) / radius);
        shares.push_back(std::fabs(found->radius - radius) / found->error);
    }
    std::ranges::sort(errors);
    std::ranges::sort(shares);
    EXPECT_LT(errors[20], 0.003);
    EXPECT_LT(errors[38], 0.01);
    EXPECT_LT(shares[20], 1.0) << "of the stated error, which is about a standard deviation";
    EXPECT_LT(shares[38], 3.0);
}

// Round or dark toward the corners, but not the rim of a lens. a, b and c vary each kind.
struct NoRim {
    const char* name;
    double (*level)(double x, double y, double fromMiddle, const std::array<double, 3>& abc);
};

// Pictures are 600 pixels wide and 450 high; distances from the middle in heights.
constexpr NoRim noRims[] = {
    {"vignette",
     [](double x, double y, double r, const std::array<double, 3>& abc) {
         return Scene(x, y) *
                std::pow(std::cos(std::min(r * (1.0 + 0.7 * abc[0]), 1.5)), 2.0 + 4.0 * abc[1]);
     }},
    {"round window in a wall",
     [](double x, double y, double r, const std::array<double, 3>& abc) {
         const double wall = 25.0 + 80.0 * abc[1] + 10.0 * std::sin(x / 9.0) + 8.0 * std::sin(y);
         return r < 0.15 + 0.3 * abc[0] ? Scene(1.3 * x, y) : wall;
     }},
    {"plate on a table, seen aslant",
     [](double x, double y, double /*r*/, const std::array<double, 3>& abc) {
         const double q = std::hypot(x - 300.0, (y - 225.0) / (0.6 + 0.35 * abc[1])) / 450.0;
         const double rim = 0.2 + 0.25 * abc[0];
         const double table = 40.0 + 60.0 * abc[2] + 12.0 * std::sin(x / 40.0 + std::sin(y / 9.0));
         return q < rim ? (q < 0.6 * rim ? 190.0 : 215.0) : table;
     }},
    {"night sky with moon, stars and a glow",
     [](double x, double y, double r, const std::array<double, 3>& abc) {
         const bool star = std::fmod(std::floor(x) * 7919.0 + std::floor(y) * 104729.0, 1801.0) < 1;
         const double glow = 40.0 * abc[2] * std::exp((y - 450.0) / 90.0);
         return r < 0.08 * (0.3 + abc[0]) ? 240.0 : star ? 160.0 : 3.0 + glow;
     }},
    {"lamp with a halo",
     [](double /*x*/, double /*y*/, double r, const std::array<double, 3>& abc) {
         return 6.0 + 230.0 * std::exp(-std::pow(r / (0.1 + 0.2 * abc[0]), 1.0 + abc[1]));
     }},
    {"spot of light on a stage",
     [](double x, double y, double r, const std::array<double, 3>& abc) {
         const double inside = (0.25 + 0.15 * abc[0] - r) / (0.05 + 0.1 * abc[1]) + 0.5;
         return 8.0 + 10.0 * abc[2] + 0.8 * Scene(x, y) * std::clamp(inside, 0.0, 1.0);
     }}};

TEST(CircleFinder, ClaimsNoneInPicturesThatHaveNone) {
    std::mt19937 random(11);
    for (int n = 0; n < 54; ++n) {
        const NoRim& kind = noRims[n % 6];
        const std::array<double, 3> abc{Between(random, 0.0, 1.0), Between(random, 0.0, 1.0),
                                        Between(random, 0.0, 1.0)};
        const double middleX = 300.0 + 60.0 * (abc[1] - 0.5);
        const double middleY = 225.0 + 60.0 * (abc[2] - 0.5);
        std::normal_distribution<double> noise(0.0, 0.5 + 2.0 * abc[0]);
        GreyPicture picture{{600, 450}, {}};
        for (int y = 0; y < 450; ++y) {
            for (int x = 0; x < 600; ++x) {
                const double r = std::hypot(x - middleX, y - middleY) / 450.0;
                const double level = kind.level(x, y, r, abc) + noise(random);
                picture.values.push_back(static_cast<std::uint8_t>(std::clamp(level, 0.0, 255.0)));
            }
        }
        EXPECT_FALSE(FindImageCircle(picture)) << kind.name << ' ' << n;
    }
}

}  // namespace
}  // namespace varnel
