// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Points, directions and pixels agree with each other and with numbers worked out by hand.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/library/pictures.h"

namespace varnel {
namespace {

using testing::photoSize;

const double half = std::sqrt(0.5);

TEST(Directions, AreThoseOfAnEquidistantLens) {
    const Lens lens = testing::EquidistantLens();
    EXPECT_NEAR(lens.FieldDegrees(), 90.0, 1e-9);
    struct Case {
        Point point;
        Direction direction;
    };
    const std::vector<Case> cases{{{148.0, 101.0}, {0.0, 0.0, 1.0}},
                                  {{193.0, 101.0}, {half, 0.0, half}},  // right
                                  {{148.0, 56.0}, {0.0, half, half}},   // up
                                  {{58.0, 101.0}, {-1.0, 0.0, 0.0}},    // left, at the rim
                                  {{148.0, 131.0}, {0.0, -0.5, half * std::sqrt(1.5)}}};
    for (const auto& [point, direction] : cases) {
        const Direction found = lens.Directions(photoSize, {point}).front();
        EXPECT_NEAR(found.x, direction.x, 1e-4) << point.x << ", " << point.y;
        EXPECT_NEAR(found.y, direction.y, 1e-4) << point.x << ", " << point.y;
        EXPECT_NEAR(found.z, direction.z, 1e-4) << point.x << ", " << point.y;
        // Of any length.
        const Point back =
            lens.Points(photoSize, {{3.0 * found.x, 3.0 * found.y, 3.0 * found.z}}).front();
        EXPECT_NEAR(back.x, point.x, 1e-3);
        EXPECT_NEAR(back.y, point.y, 1e-3);
    }
    const double none = std::nan("");
    EXPECT_TRUE(std::isnan(lens.Directions(photoSize, {{none, 1.0}}).front().z));
    EXPECT_TRUE(std::isnan(lens.Points(photoSize, {{0.0, 0.0, 0.0}}).front().x));
    EXPECT_TRUE(lens.Points(photoSize, {}).empty());
}

// The circle of a photo is where it belongs on a smaller copy of it, too.
TEST(Directions, FollowTheCirclesShare) {
    Lens lens = Lens::FromCurve({0.0, 40.0, 95.0}, {0.0, 45.0, 100.0});
    lens.SetCircle({599.5, 449.5}, 300.0, {1200, 900});
    const Point small = lens.Points({600, 450}, {{1.0, 0.0, 0.0}}).front();
    const Point large = lens.Points({1200, 900}, {{1.0, 0.0, 0.0}}).front();
    EXPECT_NEAR(small.x + 0.5, (large.x + 0.5) / 2.0, 1e-2);
    const Point atForty =
        lens.Points({1200, 900},
                    {{std::sin(40.0 * M_PI / 180.0), 0.0, std::cos(40.0 * M_PI / 180.0)}})
            .front();
    EXPECT_NEAR(atForty.x, 599.5 + 0.45 * 300.0, 0.05);
}

std::vector<View> Views() {
    std::vector<View> views(6);
    views[0].Set("Projection", "varnel");
    views[1].Set("Projection", "rectilinear").Set("OutputAOV", "100").Set("RotateY", "20");
    views[2].Set("Projection", "equidistance").Set("OutputWidth", "400");
    views[3].Set("Projection", "horizon");
    views[4].Set("Projection", "rectilinear").Set("RotateX", "-15").Set("RotateZ", "30");
    views[5]
        .Set("Projection", "equirectangular")
        .Set("OutputWidth", "360")
        .Set("OutputHeight", "180");
    return views;
}

TEST(Points, OfPhotoAndResultLeadToEachOther) {
    const Lens lens = testing::EquidistantLens();
    for (const View& view : Views()) {
        const Size size = view.SizeFor(photoSize);
        int seen = 0;
        for (double y = 3.3; y < size.height; y += size.height / 7.0) {
            for (double x = 2.7; x < size.width; x += size.width / 7.0) {
                const Point onPhoto = ResultToSource(lens, view, photoSize, {{x, y}}).front();
                if (std::hypot(onPhoto.x - 148.0, onPhoto.y - 101.0) > 85.0 ||
                    std::isnan(onPhoto.x)) {
                    continue;
                }
                const Point back = SourceToResult(lens, view, photoSize, {onPhoto}).front();
                const Point again = ResultToSource(lens, view, photoSize, {back}).front();
                EXPECT_NEAR(again.x, onPhoto.x, 0.01) << x << ", " << y;
                EXPECT_NEAR(again.y, onPhoto.y, 0.01) << x << ", " << y;
                ++seen;
            }
        }
        EXPECT_GT(seen, 6);
    }
    View ahead;
    ahead.Set("Projection", "rectilinear").Set("OutputAOV", "60");
    EXPECT_TRUE(std::isnan(SourceToResult(lens, ahead, photoSize, {{148.0, 20.0}}).front().x))
        << "beside the view";
}

// What is drawn comes from where the points say, which rows counted upside down would not.
TEST(Points, AreWherePixelsComeFrom) {
    const Lens lens = testing::EquidistantLens();
    testing::Pixels<float> photo(photoSize, 3);
    for (int y = 0; y < photoSize.height; ++y) {
        for (int x = 0; x < photoSize.width; ++x) {
            photo.At(x, y, 0) = static_cast<float>(x) / 1024.0F;
            photo.At(x, y, 1) = static_cast<float>(y) / 1024.0F;
        }
    }
    const std::vector<View> views = Views();
    for (const View& view : views) {
        // The horizon is drawn from whole rows.
        const float tolerance = &view == &views[3] ? 0.51F : 0.02F;
        testing::Pixels<float> result(view.SizeFor(photoSize), 3);
        Remap(lens, view, photo.Image(), result.Image());
        int seen = 0;
        for (int y = 4; y < result.size.height; y += result.size.height / 9) {
            for (int x = 4; x < result.size.width; x += result.size.width / 9) {
                const Point from =
                    ResultToSource(lens, view, photoSize,
                                   {{static_cast<double>(x), static_cast<double>(y)}})
                        .front();
                const bool inside = from.x > 1.0 && from.x < photoSize.width - 2.0 &&
                                    from.y > 1.0 && from.y < photoSize.height - 2.0;
                if (inside && result.At(x, y, 0) > 0.0F) {
                    EXPECT_NEAR(result.At(x, y, 0) * 1024.0F, from.x, 0.02)
                        << &view - &views[0] << ": " << x << ", " << y;
                    EXPECT_NEAR(result.At(x, y, 1) * 1024.0F, from.y, tolerance) << x << ", " << y;
                    ++seen;
                }
            }
        }
        EXPECT_GT(seen, 10);
    }
}

}  // namespace
}  // namespace varnel
