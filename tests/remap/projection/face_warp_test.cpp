// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/face_warp.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "remap/projection/rays.h"

namespace varnel {
namespace {

// Ellipses on a frame of 3 to 2 that is so many degrees wide.
struct RandomFaces {
    std::mt19937 random{20};
    double width = 0.0, height = 0.0;

    double Between(double low, double high) {
        return std::uniform_real_distribution(low, high)(random);
    }
    void Frame(double degrees) {
        width = 2.0 * std::tan(degrees * std::numbers::pi / 360.0);
        height = width / 1.5;
    }
    PlaneEllipse Next() {
        const double half = Between(0.02, 0.18) * width;
        const double angle = Between(0.0, std::numbers::pi);
        return {{Between(-0.5, 0.5) * width, Between(-0.5, 0.5) * height},
                half * Between(0.6, 1.0),
                half,
                std::cos(angle),
                std::sin(angle)};
    }
};

struct Slopes {
    Ray across, up;  // of the unit ray
};

Slopes SlopesAt(const FaceWarp& warp, const PlanePoint& point) {
    const double h = 1e-6;
    const auto ray = [&warp](double x, double y) {
        const PlanePoint place = warp.At({x, y});
        return Unit({place.x, place.y, 1.0});
    };
    const auto slope = [h](const Ray& a, const Ray& b) {
        return Ray{(a.x - b.x) / h, (a.y - b.y) / h, (a.z - b.z) / h};
    };
    return {slope(ray(point.x + h, point.y), ray(point.x - h, point.y)),
            slope(ray(point.x, point.y + h), ray(point.x, point.y - h))};
}

TEST(FaceWarp, KeepsShapesInsideAndTheStraightViewBeyondTheMargin) {
    RandomFaces faces;
    for (const double degrees : {60.0, 100.0, 140.0}) {
        faces.Frame(degrees);
        for (int n = 0; n < 50; ++n) {
            const PlaneEllipse ellipse = faces.Next();
            const auto warp = FaceWarp::Of(ellipse, 1.6);
            ASSERT_TRUE(warp);
            for (const double level : {0.0, 0.5, 0.98}) {
                const auto [across, up] = SlopesAt(*warp, ellipse.PointAt(level, 0.7 * n));
                const double square = Dot(across, across);
                EXPECT_NEAR(Dot(up, up) / square, 1.0, 1e-4);
                EXPECT_NEAR(Dot(across, up) / square, 0.0, 1e-4);
            }
            const PlanePoint outside = ellipse.PointAt(1.61, 0.7 * n);
            EXPECT_EQ(warp->At(outside).x, outside.x);
            EXPECT_EQ(warp->At(outside).y, outside.y);
            EXPECT_NEAR(warp->At(ellipse.middle).x, ellipse.middle.x, 1e-9 * faces.width);
        }
    }
}

// A fifth of a radian away from the axis the straight view is wider by 1 / cosine than high; the
// face in its area is neither.
TEST(FaceWarp, AFaceKeepsItsAreaWhereThereIsRoom) {
    const double angle = 50.0 * std::numbers::pi / 180.0;
    const auto warp = FaceWarp::Of({{std::tan(angle), 0.0}, 0.05, 0.05}, 2.2);
    ASSERT_TRUE(warp);
    EXPECT_NEAR(warp->StretchAt({std::tan(angle), 0.0}), 1.0, 1e-6);
}

TEST(FaceWarp, NothingIsMadeOfWhatHasNoArea) {
    EXPECT_FALSE(FaceWarp::Of({{0.2, 0.1}, 0.0, 0.1}, 2.0));
    EXPECT_FALSE(FaceWarp::Of({{0.2, 0.1}, 0.1, -0.1}, 2.0));
    EXPECT_FALSE(FaceWarp::Of({{std::nan(""), 0.1}, 0.1, 0.1}, 2.0));
}

// Where the ratio of areas is negative on a dense net, the view is folded; it would have to pass 0.
double StretchAt(const FaceWarps& warps, const PlanePoint& point, double h) {
    const PlanePoint right = warps.At({point.x + h, point.y});
    const PlanePoint left = warps.At({point.x - h, point.y});
    const PlanePoint above = warps.At({point.x, point.y + h});
    const PlanePoint below = warps.At({point.x, point.y - h});
    return ((right.x - left.x) * (above.y - below.y) - (right.y - left.y) * (above.x - below.x)) /
           (4.0 * h * h);
}

TEST(FaceWarps, NothingFolds) {
    constexpr int cells = 150;
    RandomFaces faces;
    for (const double degrees : {50.0, 90.0, 120.0, 150.0, 165.0}) {
        faces.Frame(degrees);
        for (int trial = 0; trial < 60; ++trial) {
            std::vector<PlaneEllipse> ellipses;
            for (int n = 0; n <= trial % 5; ++n) {
                ellipses.push_back(faces.Next());
            }
            const FaceWarps warps(ellipses);
            EXPECT_EQ(warps.Each().size(), ellipses.size());
            int over = 0;
            for (int row = 0; row <= cells; ++row) {
                for (int column = 0; column <= cells; ++column) {
                    const PlanePoint point{(1.4 * column / cells - 0.7) * faces.width,
                                           (1.4 * row / cells - 0.7) * faces.height};
                    over += StretchAt(warps, point, 1e-7 * faces.width) > 0.0 ? 0 : 1;
                }
            }
            EXPECT_EQ(over, 0) << degrees << " degrees, trial " << trial;
        }
    }
}

TEST(FaceWarps, EachKeepsItsShapeBesideAnother) {
    const PlaneEllipse left{{0.4, 0.1}, 0.1, 0.15};
    const PlaneEllipse right{{0.64, 0.1}, 0.1, 0.15};
    EXPECT_NEAR(RoomBetween(left, right), 1.2, 1e-9);
    const std::vector ellipses{left, right};
    const FaceWarps both(ellipses);
    ASSERT_EQ(both.Each().size(), 2U);
    for (const FaceWarp& warp : both.Each()) {
        for (int n = 0; n < 12; ++n) {
            const PlanePoint point = warp.Ellipse().PointAt(0.99, 0.5 * n);
            EXPECT_EQ(both.At(point).x, warp.At(point).x);
            EXPECT_EQ(both.At(point).y, warp.At(point).y);
        }
    }
}

}  // namespace
}  // namespace varnel
