// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/fisheye_shot.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

using testing::PixelAt;

const LensCurve sinCurve{16.0F, 0.5F};
const LensCurve tanCurve{26.1F, 3.0F};

FisheyeShot ShotOf(LensKind kind, LensCurve curve) {
    FisheyeShot shot;
    shot.size = {301, 201};
    shot.pixelsPerMillimetre = 10.0;
    shot.centreX = 150.0;
    shot.centreY = 100.0;
    shot.kind = kind;
    shot.curve = curve;
    return shot;
}

TEST(FisheyeRay, HandWorkedAngles) {
    struct {
        LensKind kind;
        LensCurve curve;
        double x, y;        // pixels from the centre
        double angle;       // degrees from the axis
        double across, up;  // where the ray leans, as a unit vector
    } const rows[] = {
        {LensKind::Sin, sinCurve, 61.2293492, 0.0, 45.0, 1.0, 0.0},  // 160 sin 22.5
        {LensKind::Sin, sinCurve, 0.0, 61.2293492, 45.0, 0.0, 1.0},
        {LensKind::Sin, sinCurve, 0.0, -113.137085, 90.0, 0.0, -1.0},  // 160 sin 45
        {LensKind::Sin, sinCurve, -64.0, -48.0, 60.0, -0.8, -0.6},     // 160 sin 30
        {LensKind::Sin, sinCurve, 150.350819, 0.0, 140.0, 1.0, 0.0},   // 160 sin 70
        {LensKind::Tan, tanCurve, -69.9347391, 0.0, 45.0, -1.0, 0.0},  // 261 tan 15
        {LensKind::Tan, tanCurve, 0.0, 150.688420, 90.0, 0.0, 1.0},    // 261 tan 30
    };
    for (const auto& row : rows) {
        const std::optional<Ray> ray =
            FisheyeRay(ShotOf(row.kind, row.curve), 150.0 + row.x, 100.0 + row.y);
        ASSERT_TRUE(ray) << row.angle;
        const double angle = row.angle * 3.14159265358979 / 180.0;
        EXPECT_NEAR(ray->x, std::sin(angle) * row.across, 1e-6) << row.angle;
        EXPECT_NEAR(ray->y, std::sin(angle) * row.up, 1e-6) << row.angle;
        EXPECT_NEAR(ray->z, std::cos(angle), 1e-6) << row.angle;
        const double radius = LensRadius(row.kind, angle, row.curve) * 10.0;
        EXPECT_NEAR(radius, std::hypot(row.x, row.y), 1e-4) << row.angle;
    }
}

TEST(FisheyeRay, NothingOutsideTheCircleAndBeyondTheLens) {
    FisheyeShot shot = ShotOf(LensKind::Sin, sinCurve);
    EXPECT_TRUE(FisheyeRay(shot, 150.0 + 159.9, 100.0));
    EXPECT_FALSE(FisheyeRay(shot, 150.0 + 160.1, 100.0));  // no sine is above 1
    shot.circleRadius = 11.4;
    EXPECT_TRUE(FisheyeRay(shot, 150.0, 100.0 - 113.9));
    EXPECT_FALSE(FisheyeRay(shot, 150.0, 100.0 - 114.1));
    const FisheyeShot tangent = ShotOf(LensKind::Tan, tanCurve);
    EXPECT_TRUE(FisheyeRay(tangent, 150.0 + 452.0, 100.0));  // 261 tan 60 = 452.07: straight behind
    EXPECT_FALSE(FisheyeRay(tangent, 150.0 + 452.2, 100.0));
}

TEST(TakeFisheye, TheBytesDoNotDependOnTheThreads) {
    FisheyeShot shot = ShotOf(LensKind::Sin, {5.0F, 0.5F});
    shot.size = {61, 47};
    shot.centreX = 30.0;
    shot.centreY = 23.0;
    shot.samples = 2;
    shot.noise = 3.0;
    const QByteArray one = testing::PixelBytes(TakeFisheye(LookAt, shot, 1).get());
    for (const int threads : {2, 5, 100, 0}) {
        EXPECT_EQ(one, testing::PixelBytes(TakeFisheye(LookAt, shot, threads).get())) << threads;
    }
    shot.noise = 0.0;
    EXPECT_NE(one, testing::PixelBytes(TakeFisheye(LookAt, shot, 1).get()));
}

TEST(TakeFisheye, NoiseHasItsDeviationAndNoDirection) {
    FisheyeShot shot = ShotOf(LensKind::Sin, sinCurve);
    shot.circleRadius = 9.0;
    shot.noise = 3.0;
    const BitmapHandle picture = TakeFisheye(
        [](const Ray&) {
            return Colour{100.0, 130.0, 160.0};
        },
        shot);
    double sum = 0.0, squares = 0.0, besides = 0.0, channels = 0.0;
    int count = 0;
    for (int y = 50; y < 150; ++y) {
        for (int x = 100; x < 200; ++x) {
            const PixelColor pixel = PixelAt(picture.get(), x, y);
            const double noise = pixel.green - 130.0;
            sum += noise;
            squares += noise * noise;
            besides += noise * (PixelAt(picture.get(), x + 1, y).green - 130.0);
            channels += noise * (pixel.red - 100.0);
            ++count;
        }
    }
    // With 10,000 pixels the errors of these means are 0.03 levels and 0.09 squares of a level.
    EXPECT_NEAR(sum / count, 0.0, 0.12);
    EXPECT_NEAR(squares / count, 9.0 + 1.0 / 12.0, 0.5);
    EXPECT_NEAR(besides / count, 0.0, 0.4);
    EXPECT_NEAR(channels / count, 0.0, 0.4);
    EXPECT_TRUE(testing::IsBlack(picture.get(), 0, 0));
}

TEST(TakeView, SamplesSpreadEvenlyOverThePixel) {
    // Bright from x = 2.2 on: pixel 2 covers 1.5 to 2.5, so of four columns of samples
    // (1.625, 1.875, 2.125, 2.375) one is bright, of two (1.75, 2.25) one, the only one (2.0) is
    // not.
    const EdgeScene scene{{1.0, 0.0, 0.0}, 0.0, 200.0};
    const auto rayAt = [](double x, double) { return Ray{x - 2.2, 0.0, 1.0}; };
    const int expected[] = {0, 0, 100, 0, 50};
    for (const int samples : {1, 2, 4}) {
        const BitmapHandle view = TakeView(scene, {5, 2}, samples, rayAt);
        EXPECT_EQ(PixelAt(view.get(), 1, 1).red, 0);
        EXPECT_EQ(PixelAt(view.get(), 2, 1).red, expected[samples]) << samples;
        EXPECT_EQ(PixelAt(view.get(), 3, 1).red, 200);
    }
}

}  // namespace
}  // namespace varnel
