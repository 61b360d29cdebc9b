// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pairs of opposite circles, drawn by casting rays, against the sphere itself.

#include "remap/render/stitch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "samples/fisheye_shot.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr int width = 400;  // of the result

// A circle of 200 degrees in a square frame.
ImageRecord CircleRecord() {
    ImageRecord record = testing::FisheyeRecord();
    record.SensorWidth = record.SensorHeight = 24.0F;
    record.LensMapScale = 15.0F;
    record.ImageCircleRadius = 11.49F;  // 15 sin 50
    record.Ratio = 104.4F;              // in percent of the circle
    return record;
}

Ray Behind(const Ray& ray) {
    return {-ray.x, ray.y, -ray.z};
}

BitmapHandle Circle(const Scene& scene, bool back, PixelSize size = {300, 300}) {
    FisheyeShot shot;
    shot.size = size;
    shot.pixelsPerMillimetre = size.width / 24.0;
    shot.centreX = size.width / 2;
    shot.centreY = size.height / 2;
    shot.circleRadius = 11.49;
    shot.curve = {15.0F, 0.5F};
    shot.samples = 3;
    return TakeFisheye([&](const Ray& ray) { return scene(back ? Behind(ray) : ray); }, shot);
}

Ray SphereRay(double x, double y) {
    const double across = (x - width / 2) * 2.0 * std::numbers::pi / width;
    const double up = (y - width / 4) * 2.0 * std::numbers::pi / width;
    return {std::sin(across) * std::cos(up), std::sin(up), std::cos(across) * std::cos(up)};
}

BitmapHandle Stitched(const Scene& front, const Scene& back, const ImageRecord& record) {
    SilentProgress silent;
    return Stitch({Circle(front, false), record}, {Circle(back, true), record}, {width, 4.0},
                  silent);
}

// Half the width of the blend, and how far beside it what only one photo shows is looked at,
// pixels.
constexpr int halfBlend = 3;
constexpr int besideBlend = 10;

// How much brighter than the scene a piece of a row is, on average.
double Excess(const Bitmap* result, const Scene& scene, int first, int y) {
    double sum = 0.0;
    for (int x = first; x < first + besideBlend; ++x) {
        sum += testing::PixelAt(result, x, y).green - scene(SphereRay(x, y)).green;
    }
    return sum / besideBlend;
}

// On both sides of the seams of a camera held level, a quarter of the way to the left and right.
void ExpectToMeet(const Bitmap* result, const Scene& scene) {
    for (const int seam : {width / 4, 3 * width / 4}) {
        for (int y = width / 16; y < 7 * width / 16; ++y) {
            const double left = Excess(result, scene, seam - halfBlend - besideBlend, y);
            const double right = Excess(result, scene, seam + halfBlend + 1, y);
            EXPECT_NEAR(left, right, 1.0) << seam << " " << y;
        }
    }
}

// Rounded source levels and blends rounded down half a level each.
void ExpectScene(const Bitmap* result, const Scene& scene, double factor = 1.0) {
    ASSERT_EQ(SizeOf(result).height, width / 2);
    double mean = 0.0;
    for (int y = 0; y < width / 2; ++y) {
        for (int x = 0; x < width; ++x) {
            const Colour expected = scene(SphereRay(x, y));
            const PixelColor pixel = testing::PixelAt(result, x, y);
            const double error = pixel.green + 0.5 - expected.green * factor;
            mean += std::fabs(error) / (width * width / 2);
            EXPECT_LT(std::fabs(error), 1.6) << x << " " << y;
        }
    }
    EXPECT_LT(mean, 0.5);
}

TEST(Stitch, TwoCirclesMakeTheSphere) {
    const BitmapHandle result = Stitched(LookAtGradients, LookAtGradients, CircleRecord());
    ExpectScene(result.get(), LookAtGradients);
    ExpectToMeet(result.get(), LookAtGradients);
    EXPECT_TRUE(result->metadata.panorama);
}

TEST(Stitch, TheFrontTurnsBoth) {
    ImageRecord record = CircleRecord();
    record.RotateX = 20.0F;
    record.RotateY = -50.0F;
    record.RotateZ = 35.0F;
    const RayRotation turn(RotationAngles(20.0F, -50.0F, 35.0F, 100.0F));
    ExpectScene(Stitched(LookAtGradients, LookAtGradients, record).get(),
                [&turn](const Ray& ray) { return LookAtGradients(turn.Turn(ray)); });
}

BitmapHandle In16Bits(const Bitmap& bytes, bool alpha) {
    BitmapHandle deep = NewBitmap(bytes.Size(), alpha ? PixelFormat::Bgra16 : PixelFormat::Bgr16);
    for (int y = 0; y < bytes.Size().height; ++y) {
        for (int x = 0; x < bytes.Size().width; ++x) {
            PixelColor colour = testing::PixelAt(&bytes, x, y);
            colour.reserved = 255;
            SetPixelColor(deep.get(), x, y, colour);
        }
    }
    return deep;
}

// With a back photo of bytes, too: the result is as deep as the front. Bytes are rounded down.
TEST(Stitch, DeepPhotosMakeTheSameSphere) {
    const BitmapHandle front = Circle(LookAtGradients, false);
    const BitmapHandle back = Circle(LookAtGradients, true);
    const BitmapHandle bytes = Stitched(LookAtGradients, LookAtGradients, CircleRecord());
    SilentProgress silent;
    for (const bool backIsDeep : {true, false}) {
        for (const bool alpha : {false, true}) {
            const BitmapHandle result = Stitch(
                {In16Bits(*front, alpha), CircleRecord()},
                {backIsDeep ? In16Bits(*back, false) : CloneBitmap(back.get()), CircleRecord()},
                {width, 4.0}, silent);
            ASSERT_EQ(SampleKindOf(result->Format()), SampleKind::Word);
            for (int n = 0; n < width * width / 2; ++n) {
                const PixelColor deep = testing::PixelAt(result.get(), n % width, n / width);
                const PixelColor shallow = testing::PixelAt(bytes.get(), n % width, n / width);
                ASSERT_NEAR(deep.green, shallow.green, 1) << n % width << " " << n / width;
            }
        }
    }
}

// The back one is darker by a tenth: both meet in the middle, the front's level times the root.
TEST(Stitch, ColoursMeetAtTheSeam) {
    const Scene darker = [](const Ray& ray) {
        const Colour colour = LookAtGradients(ray);
        return Colour{colour.red * 0.9, colour.green * 0.9, colour.blue * 0.9};
    };
    const BitmapHandle result = Stitched(LookAtGradients, darker, CircleRecord());
    ExpectScene(result.get(), LookAtGradients, std::sqrt(0.9));
    ExpectToMeet(result.get(), [](const Ray& ray) {
        const Colour colour = LookAtGradients(ray);
        const double factor = std::sqrt(0.9);
        return Colour{colour.red * factor, colour.green * factor, colour.blue * factor};
    });
}

// Along a row the level is halfway between dark and bright.
double CrossingIn(const Bitmap* picture, int y, int from, int to) {
    for (int x = from; x < to; ++x) {
        const double left = testing::PixelAt(picture, x, y).green - 125.0;
        const double right = testing::PixelAt(picture, x + 1, y).green - 125.0;
        if (left * right <= 0.0 && left != right) {
            return x + left / (left - right);
        }
    }
    return -1.0;
}

// An upright edge just before, in and just behind the seam at 90 degrees to the right is where it
// belongs, in all rows near the horizon.
TEST(Stitch, EdgesRunOnAcrossTheSeam) {
    for (const double degrees : {86.0, 89.0, 90.0, 91.0, 94.0}) {
        const double angle = degrees * std::numbers::pi / 180.0;
        const EdgeScene edge{{std::cos(angle), 0.0, -std::sin(angle)}};
        const BitmapHandle result = Stitched(edge, edge, CircleRecord());
        const double place = width / 2 + degrees / 360.0 * width;
        for (int y = width / 4 - 40; y <= width / 4 + 40; y += 8) {
            EXPECT_NEAR(CrossingIn(result.get(), y, width / 2 + 60, width - 60), place, 0.5)
                << degrees << " " << y;
        }
    }
}

TEST(SplitInTwo, LeftAndRightOrUpperAndLower) {
    const auto number = [](int x, int y) {
        return PixelColor{static_cast<BYTE>(x), static_cast<BYTE>(y), 0, 0};
    };
    const BitmapHandle wide = testing::Painted({10, 4}, number);
    const auto [left, right] = SplitInTwo(*wide);
    EXPECT_EQ(SizeOf(left.get()).width, 5);
    EXPECT_EQ(testing::PixelAt(left.get(), 0, 3).green, 3);
    EXPECT_EQ(testing::PixelAt(right.get(), 0, 3).blue, 5);
    const BitmapHandle high = testing::Painted({4, 11}, number);
    const auto [upper, lower] = SplitInTwo(*high);
    EXPECT_EQ(SizeOf(upper.get()).height, 5);
    EXPECT_EQ(testing::PixelAt(upper.get(), 0, 0).green, 6);
    EXPECT_EQ(testing::PixelAt(lower.get(), 0, 0).green, 0);
}

TEST(NaturalWidth, HasTheResolutionOfTheLensAtItsAxis) {
    // 15 mm times half a radian for each radian, 12.5 px for each mm, 2 pi radians.
    EXPECT_EQ(NaturalWidth(CircleRecord(), {300, 300}), 588);
}

}  // namespace
}  // namespace varnel
