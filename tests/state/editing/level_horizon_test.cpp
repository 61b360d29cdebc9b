// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/level_horizon.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "remap/analysis/point_mapping.h"
#include "remap/projection/projection_info.h"
#include "remap/projection/record_maps.h"
#include "remap/render/render.h"
#include "state/records/projection.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize wide{3000, 2000};

struct Scene {
    const char* name;
    PixelSize size;
    const char* brand;
    float scale, factor, effect, tilt, pan, roll;
};

ImageRecord RecordOf(const Scene& scene) {
    ImageRecord image = testing::FisheyeRecord();
    image.Landscape = scene.size.width >= scene.size.height;
    image.Projection = static_cast<std::int16_t>(Projection::Rectilinear);
    image.LensBrand = QString::fromLatin1(scene.brand);
    image.LensMapScale = scene.scale;
    image.LensMapFactor = scene.factor;
    image.EffectRectilinear = scene.effect;
    image.OfsetX = 8.0F;
    image.OfsetY = -13.0F;
    image.RotateX = scene.tilt;
    image.RotateY = scene.pan;
    image.RotateZ = scene.roll;
    return image;
}

// Where the renderer finds the middle row of the levelled picture, shaken by half a pixel.
std::vector<PicturePoint> Trace(const ImageRecord& image, PixelSize size) {
    const RotatedRectilinearMap map(RectilinearViewOf(image, FramesOf(image, size)),
                                    CameraMoveOf(image));
    const CentreAndExtents centre = ImageCentre(size, image.OfsetX, image.OfsetY);
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0.0, 0.5);
    std::vector<PicturePoint> points;
    for (int x = -size.width / 3; x <= size.width / 3; x += 10) {
        const SourceOffset found = map.At(x, 0);
        points.push_back({centre.cx + found.u + 0.5 + noise(random),
                          size.height - (centre.cy + found.v + 0.5) + noise(random)});
    }
    return points;
}

class LevelHorizonOf : public ::testing::TestWithParam<Scene> {};

TEST_P(LevelHorizonOf, FindsTiltAndRollWithStrayPoints) {
    const ImageRecord truth = RecordOf(GetParam());
    ImageRecord image = truth;
    image.RotateX = 0.0F;
    image.RotateZ = 0.0F;
    std::vector<PicturePoint> points = Trace(truth, GetParam().size);
    for (std::size_t i = 0; i < points.size() / 5; ++i) {
        points[i * 3].y += 150.0;
    }
    const Levelling level = LevelHorizon(image, GetParam().size, points);
    EXPECT_EQ(level.error, LevelError::None);
    EXPECT_NEAR(level.rotateX, static_cast<double>(truth.RotateX), 0.3);
    EXPECT_NEAR(level.rotateZ, static_cast<double>(truth.RotateZ), 0.3);
}

INSTANTIATE_TEST_SUITE_P(
    Lenses, LevelHorizonOf,
    ::testing::Values(
        Scene{"Equisolid", wide, "Sigma", 16.0F, 0.5F, 100.0F, 12.0F, 0.0F, -4.0F},
        Scene{"Panned", wide, "Sigma", 16.0F, 0.5F, 100.0F, -31.0F, 25.0F, 17.0F},
        Scene{"PartialEffect", wide, "Sigma", 16.0F, 0.5F, 60.0F, 35.0F, -20.0F, 9.0F},
        Scene{"Equidistant", wide, "Nikon", 24.0F, 0.333F, 100.0F, 3.0F, 0.0F, 38.0F},
        Scene{"Tangent", wide, "GoPro", 29.0F, 2.0F, 100.0F, 20.0F, 10.0F, -11.0F},
        Scene{"Upright", {2000, 3000}, "Sigma", 16.0F, 0.5F, 100.0F, -8.0F, 0.0F, 6.0F}),
    [](const auto& scene) { return scene.param.name; });

// Where a view shows the horizon: its middle row, or for a planet the ring at 90 degrees.
std::vector<PicturePoint> TraceOnView(const ImageRecord& image, PixelSize size) {
    const Projection projection = ProjectionFromIndex(image.Projection);
    const PointMapping map(projection, image, size);
    const InverseMapping photo(projection, image, size);
    const double half = size.width / 2;
    std::vector<PicturePoint> points;
    for (int n = -100; n < 100; ++n) {
        const double way = n / 100.0;
        const double turn = way * std::numbers::pi;
        const bool planet = projection == Projection::LittlePlanet;
        const auto place =
            planet
                ? map.At({half * (1.0 + std::cos(turn)), size.height / 2 + half * std::sin(turn)})
                : map.At({half * (1.0 + way), size.height / 2.0});
        if (place && photo.InPicture(*place)) {
            points.push_back({place->x + 0.5, size.height - 0.5 - place->y});
        }
    }
    return points;
}

TEST(LevelHorizon, PutsItWhereEveryViewHasIt) {
    const struct {
        Projection projection;
        CameraPose pose;
        float tilt, pan, roll;
    } views[] = {{Projection::Stereographic, CameraPose::Level, 12, 0, -5},
                 {Projection::Cylindrical, CameraPose::Level, -20, 30, 11},
                 {Projection::Equirectangular, CameraPose::Level, 9, -15, 4},
                 {Projection::LittlePlanet, CameraPose::Level, 14, 25, 23},
                 {Projection::LittlePlanet, CameraPose::Down, 11, 0, 40},
                 {Projection::Unrolled, CameraPose::Level, 8, 0, 30}};
    for (const auto& view : views) {
        ImageRecord image = testing::FisheyeRecord();
        image.Projection = static_cast<std::int16_t>(view.projection);
        image.OutputAOV = view.projection == Projection::Unrolled ? 360.0F : 180.0F;
        image.UnrollFrom = 60.0F;
        image.UnrollTo = 120.0F;
        image.Pose = view.pose;
        image.RotateX = view.tilt;
        image.RotateY = view.pan;
        image.RotateZ = view.roll;
        const std::vector<PicturePoint> points = TraceOnView(image, wide);
        image.RotateX = 0.0F;
        image.RotateZ = 0.0F;
        const Levelling level = LevelHorizon(image, wide, points);
        SCOPED_TRACE(qPrintable(ToText(view.projection)));
        EXPECT_EQ(level.error, LevelError::None);
        EXPECT_NEAR(level.rotateX, static_cast<double>(view.tilt), 0.3);
        EXPECT_NEAR(level.rotateZ, static_cast<double>(view.roll), 0.3);
        EXPECT_EQ(level.unpanned,
                  view.pose == CameraPose::Down || view.projection == Projection::Unrolled);
    }
}

TEST(LevelHorizon, TakesTheSolutionNearestToThePresent) {
    ImageRecord image = RecordOf({"", wide, "Sigma", 16.0F, 0.5F, 100.0F, 12.0F, 0.0F, -4.0F});
    const std::vector<PicturePoint> points = Trace(image, wide);
    image.RotateZ = -170.0F;  // hung upside down
    const Levelling level = LevelHorizon(image, wide, points);
    EXPECT_NEAR(level.rotateX, -12.0, 0.3);
    EXPECT_NEAR(std::remainder(level.rotateZ, 360.0), 176.0, 0.3);
}

TEST(LevelHorizon, SaysWhatIsWrong) {
    ImageRecord image = RecordOf({"", wide, "Sigma", 16.0F, 0.5F, 100.0F, 52.0F, 0.0F, -43.0F});
    const std::vector<PicturePoint> steep = Trace(image, wide);
    image.RotateX = 0.0F;
    image.RotateZ = 0.0F;
    const Levelling beyond = LevelHorizon(image, wide, steep);
    EXPECT_EQ(beyond.error, LevelError::OutOfReach);
    EXPECT_NEAR(beyond.beyondX, 12.0, 0.3);
    EXPECT_NEAR(beyond.beyondZ, -3.0, 0.3);

    const std::vector<PicturePoint> dot{{1500, 1000}, {1502, 1001}};
    EXPECT_EQ(LevelHorizon(image, wide, dot).error, LevelError::TooShort);
    EXPECT_EQ(LevelHorizon(image, wide, {}).error, LevelError::TooShort);
    std::vector<PicturePoint> scrawl;
    for (int i = 0; i < 60; ++i) {
        scrawl.push_back({1500 + 400 * std::cos(i), 1000 + 400 * std::sin(i)});
    }
    EXPECT_EQ(LevelHorizon(image, wide, scrawl).error, LevelError::NotStraight);
    image.LensMapFactor = 0.0F;
    EXPECT_EQ(LevelHorizon(image, wide, steep).error, LevelError::NoLens);
}

// Sky above a plane through the camera, photographed with an equisolid lens of 16 mm, traced pixel
// by pixel where it ends, levelled and converted: the border is one straight level line.
TEST(LevelHorizon, TheConvertedHorizonIsLevel) {
    constexpr PixelSize size{900, 600};
    const Ray up{0.28, 0.91, -0.31};
    ImageRecord image = testing::FisheyeRecord();
    image.Width = size.width;
    image.Height = size.height;
    const auto isSky = [&](int x, int y) {
        const double u = x - 450;
        const double v = y - 300;
        const double r = std::hypot(u, v);
        const double theta = 2.0 * std::asin(std::min(r * 36.0 / 900.0 / 16.0, 1.0));
        const double side = r == 0.0 ? 0.0 : std::sin(theta) / r;
        return up.x * u * side + up.y * v * side + up.z * std::cos(theta) > 0.0;
    };
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = testing::Painted(size, [&](int x, int y) {
        const BYTE grey = isSky(x, y) ? 255 : 0;
        return PixelColor{grey, grey, grey, 0};
    });
    std::vector<PicturePoint> traced;
    for (int x = 200; x < 700; x += 5) {
        for (int y = 1; y < size.height; ++y) {
            if (isSky(x, y) && !isSky(x, y - 1)) {
                traced.push_back({x + 0.5, static_cast<double>(size.height - y)});
            }
        }
    }
    const Levelling level = LevelHorizon(image, size, traced);
    ASSERT_EQ(level.error, LevelError::None);
    image.RotateX = static_cast<float>(level.rotateX);
    image.RotateZ = static_cast<float>(level.rotateZ);
    SilentProgress progress;
    RenderContext workspace{bitmaps, [] { return true; }};
    Render(Projection::Rectilinear, image, SizeKind::Large, progress, workspace);
    for (int x = 100; x <= 800; x += 50) {
        EXPECT_LT(testing::PixelAt(bitmaps.ResultBitmap.get(), x, 297).green, 60) << x;
        EXPECT_GT(testing::PixelAt(bitmaps.ResultBitmap.get(), x, 303).green, 195) << x;
    }
}

}  // namespace
}  // namespace varnel
