// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Conversions against what a perfect lens would have seen: the source is drawn by casting rays, the
// result is compared with rays cast for the output pixels. Those come from the model here (doubles,
// matrices of its own), not from the maps.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <utility>

#include "remap/render/render.h"
#include "samples/fisheye_shot.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

double InRadians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

double Dot(const Ray& a, const Ray& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// One photo and how its camera is turned. Shifts and sizes in pixels are worked out by hand.
struct Photo {
    std::string name;
    PixelSize size{240, 160};
    double pixelsPerMillimetre = 240.0 / 36.0;
    ImageRecord record = testing::FisheyeRecord();
    LensKind kind = LensKind::Sin;
    int shiftX = 0;  // of the circle's centre, up and right
    int shiftY = 0;
    double outputShiftX = 0.0;  // of the picture: twice the translation
    double outputShiftY = 0.0;

    double CentreX() const { return size.width / 2 + shiftX; }
    double CentreY() const { return size.height / 2 + shiftY; }

    FisheyeShot Shot(int samples) const {
        FisheyeShot shot;
        shot.size = size;
        shot.pixelsPerMillimetre = pixelsPerMillimetre;
        shot.centreX = CentreX();
        shot.centreY = CentreY();
        shot.kind = kind;
        shot.curve = {record.LensMapScale, record.LensMapFactor};
        shot.samples = samples;
        return shot;
    }
};

BitmapHandle Convert(Projection projection, const Photo& photo, const Scene& scene, int samples) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = TakeFisheye(scene, photo.Shot(samples));
    SilentProgress progress;
    RenderContext context{bitmaps};
    Render(projection, photo.record, SizeKind::Large, progress, context);
    return std::move(bitmaps.ResultBitmap);
}

// A quarter turn would carry the axis `from` onto the axis `to`.
void Swing(double& from, double& to, double degrees) {
    const double cosine = std::cos(InRadians(degrees));
    const double sine = std::sin(InRadians(degrees));
    const double was = from;
    from = cosine * was - sine * to;
    to = sine * was + cosine * to;
}

// The direction that a pinhole camera shows at (x, y) from the centre of its picture, when it has
// been panned right, then tilted down, then rolled so that its right side rises.
Ray PinholeRay(const Photo& photo, double x, double y) {
    const double half = InRadians(static_cast<double>(photo.record.OutputAOV)) / 2.0;
    Ray ray{x - photo.outputShiftX, y - photo.outputShiftY, photo.size.width / 2 / std::tan(half)};
    Swing(ray.z, ray.x, static_cast<double>(photo.record.RotateY));
    Swing(ray.z, ray.y, -static_cast<double>(photo.record.RotateX));
    Swing(ray.x, ray.y, static_cast<double>(photo.record.RotateZ));
    return ray;
}

// The direction of an equidistant lens with so many degrees per pixel.
Ray EquidistantRay(double degreesPerPixel, double x, double y) {
    const double radius = std::hypot(x, y);
    const double theta = InRadians(radius * degreesPerPixel);
    const double aside = radius == 0.0 ? 0.0 : std::sin(theta) / radius;
    return {x * aside, y * aside, std::cos(theta)};
}

struct Errors {
    double mean = 0.0;
    double most = 0.0;
};

using TruthAt = std::function<Ray(double x, double y)>;

// Over the whole output; the photos below show all of it. Blends are rounded down, so a level
// stands for half a level more.
Errors Compare(const Bitmap* result, const Photo& photo, const TruthAt& truth) {
    Errors errors;
    for (int y = 0; y < photo.size.height; ++y) {
        for (int x = 0; x < photo.size.width; ++x) {
            const PixelColor pixel = testing::PixelAt(result, x, y);
            const Colour expected =
                LookAtGradients(truth(x - photo.CentreX(), y - photo.CentreY()));
            for (const double error :
                 {pixel.red + 0.5 - expected.red, pixel.green + 0.5 - expected.green,
                  pixel.blue + 0.5 - expected.blue}) {
                errors.mean += std::fabs(error) / (3.0 * photo.size.width * photo.size.height);
                errors.most = std::max(errors.most, std::fabs(error));
            }
        }
    }
    return errors;
}

// What sampling alone explains: source levels are rounded (up to half a level, less when four are
// blended) and the blend is rounded down (an even spread of half a level to both sides, 0.25 on
// average), and between pixels the gradients bend by less than 0.1 level. One pixel is one to three
// levels here, so half a pixel astray anywhere already shows.
void ExpectOnlySampling(const Errors& errors) {
    EXPECT_LT(errors.mean, 0.35);
    EXPECT_LT(errors.most, 1.1);
}

Photo Turned(const char* name, float x, float y, float z) {
    Photo photo{name};
    photo.record.RotateX = x;
    photo.record.RotateY = y;
    photo.record.RotateZ = z;
    return photo;
}

Photo Upright(Photo photo) {
    photo.name += "Upright";
    photo.size = {160, 240};
    photo.pixelsPerMillimetre = 160.0 / 24.0;
    photo.record.Landscape = false;
    return photo;
}

Photo ThroughTangentLens(Photo photo) {
    photo.name += "TangentLens";
    photo.kind = LensKind::Tan;
    photo.record.LensBrand = QStringLiteral("Samyang");
    photo.record.LensModel = QStringLiteral("8 mm f/3.5");
    photo.record.LensMapScale = 26.1F;
    photo.record.LensMapFactor = 3.0F;
    return photo;
}

// Offsets in thousandths, the centre's shift in whole pixels up and right.
Photo OffCentre(Photo photo, float offsetX, float offsetY, int shiftX, int shiftY) {
    photo.name += "OffCentre" + std::to_string(std::abs(shiftX));
    photo.record.OfsetX = offsetX;
    photo.record.OfsetY = offsetY;
    photo.shiftX = shiftX;
    photo.shiftY = shiftY;
    return photo;
}

// Translations in percent, the picture's shift in pixels.
Photo Translated(Photo photo, float x, float y, double outputShiftX, double outputShiftY) {
    photo.name += "Translated";
    photo.record.TranslateX = x;
    photo.record.TranslateY = y;
    photo.outputShiftX = outputShiftX;
    photo.outputShiftY = outputShiftY;
    return photo;
}

Photo Odd(Photo photo) {
    photo.name += "OddSides";
    photo.size = {241, 161};
    photo.pixelsPerMillimetre = 241.0 / 36.0;
    return photo;
}

Photo Straight() {
    return {"Straight"};
}
Photo AllTurns() {
    return Turned("AllTurns", -12.0F, 20.0F, -35.0F);
}

class PinholeTruth : public ::testing::TestWithParam<Photo> {};

TEST_P(PinholeTruth, OnlySamplingTellsTheConversionFromAPinholeCamera) {
    const Photo& photo = GetParam();
    const BitmapHandle result = Convert(Projection::Rectilinear, photo, LookAtGradients, 1);
    ExpectOnlySampling(
        Compare(result.get(), photo, [&](double x, double y) { return PinholeRay(photo, x, y); }));
}

INSTANTIATE_TEST_SUITE_P(
    Photos, PinholeTruth,
    ::testing::Values(
        Straight(), Upright(Straight()), Odd(Straight()), ThroughTangentLens(Straight()),
        Turned("Down", 25.0F, 0.0F, 0.0F), Turned("Up", -25.0F, 0.0F, 0.0F),
        Turned("Right", 0.0F, 30.0F, 0.0F), Turned("Left", 0.0F, -30.0F, 0.0F),
        Turned("Rolled", 0.0F, 0.0F, 40.0F), AllTurns(),
        Turned("AllTurnsTheOtherWay", 15.0F, -18.0F, 70.0F), Upright(AllTurns()), Odd(AllTurns()),
        ThroughTangentLens(AllTurns()),
        // 240 x 0.05 = 12; 160 x 0.0303 = 4.848, rounded down; a positive offset moves down
        OffCentre(Straight(), 50.0F, 30.3F, 12, -4),
        // 240 x -0.0303 = -7.272, rounded down to -8; 160 x -0.05 = -8
        OffCentre(Straight(), -30.3F, -50.0F, -8, 8), OffCentre(AllTurns(), -30.3F, -50.0F, -8, 8),
        OffCentre(Upright(Straight()), 50.0F, 30.3F, 8, -7),
        // 5 % of 240 and -7.5 % of 160 pixels, twice
        Translated(Straight(), 5.0F, -7.5F, 24.0, -24.0),
        Translated(AllTurns(), -5.0F, 2.5F, -24.0, 8.0)),
    [](const auto& testInfo) { return testInfo.param.name; });

// A straight edge of the scene: bright below a line that crosses the whole output.
struct Edge {
    Photo photo;
    Ray normal;
};

Photo Big(Photo photo) {
    photo.size = {600, 400};
    photo.pixelsPerMillimetre = 600.0 / 36.0;
    return photo;
}

class PinholeEdge : public ::testing::TestWithParam<Edge> {};

TEST_P(PinholeEdge, AStraightEdgeStaysStraightAndInItsPlace) {
    const Photo& photo = GetParam().photo;
    const Ray& normal = GetParam().normal;
    const EdgeScene scene{normal};
    const BitmapHandle result = Convert(Projection::Rectilinear, photo, scene, 4);
    double most = 0.0;
    for (int x = 0; x < photo.size.width; ++x) {
        double brightRows = 0.0;
        for (int y = 0; y < photo.size.height; ++y) {
            const int level = testing::PixelAt(result.get(), x, y).green;
            brightRows += (level - scene.dark) / (scene.bright - scene.dark);
        }
        // The edge is where the direction is across the normal; along a column that grows evenly.
        const double across = x - photo.CentreX();
        const double atZero = Dot(PinholeRay(photo, across, 0.0), normal);
        const double slope = Dot(PinholeRay(photo, across, 1.0), normal) - atZero;
        const double expected = photo.CentreY() - atZero / slope;
        ASSERT_GT(expected, 5.0);
        ASSERT_LT(expected, photo.size.height - 6.0);
        // The lowest row begins half a pixel below its centre.
        most = std::max(most, std::fabs(brightRows - 0.5 - expected));
    }
    EXPECT_LT(most, 0.5);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, PinholeEdge,
    ::testing::Values(Edge{Big(Straight()), {0.15, -1.0, 0.02}},
                      Edge{Big(Straight()), {-0.1, -1.0, 0.45}},
                      Edge{Big(Turned("Turned", 12.0F, 15.0F, 20.0F)), {0.25, -1.0, -0.28}},
                      Edge{Big(ThroughTangentLens(Straight())), {-0.2, -1.0, -0.38}}));

struct EquidistantCase {
    Photo photo;
    double degreesPerPixel;
};

Photo WithRatio(Photo photo, float ratio, float inputAov) {
    photo.record.Ratio = ratio;
    photo.record.InputAOV = inputAov;
    return photo;
}

// The lens is laid out for the picture's width over the sensor's longer side, upright frames too.
Photo UprightAsLaidOut() {
    Photo photo = Upright(Straight());
    photo.pixelsPerMillimetre = 160.0 / 36.0;
    return photo;
}

class EquidistantTruth : public ::testing::TestWithParam<EquidistantCase> {};

TEST_P(EquidistantTruth, OnlySamplingTellsTheConversionFromAnEquidistantLens) {
    const Photo& photo = GetParam().photo;
    const BitmapHandle result = Convert(Projection::Equidistance, photo, LookAtGradients, 1);
    ExpectOnlySampling(Compare(result.get(), photo, [&](double x, double y) {
        return EquidistantRay(GetParam().degreesPerPixel, x, y);
    }));
}

// The frame's angle is the input angle times 36 / 24; half of it lies on the reference radius: the
// circle's 11.4 mm in pixels, or half the longer side when the ratio is 100 or less.
INSTANTIATE_TEST_SUITE_P(
    Lenses, EquidistantTruth,
    ::testing::Values(
        EquidistantCase{WithRatio(Straight(), 125.0F, 80.0F), 60.0 / 76.0},
        EquidistantCase{WithRatio(Straight(), 100.0F, 80.0F), 60.0 / 120.0},
        EquidistantCase{WithRatio(ThroughTangentLens(Straight()), 100.0F, 100.0F), 75.0 / 120.0},
        EquidistantCase{WithRatio(OffCentre(Straight(), -30.3F, -50.0F, -8, 8), 125.0F, 60.0F),
                        45.0 / 76.0},
        EquidistantCase{WithRatio(UprightAsLaidOut(), 125.0F, 80.0F), 60.0 / 76.0},
        EquidistantCase{WithRatio(UprightAsLaidOut(), 100.0F, 80.0F), 60.0 / 120.0}));

}  // namespace
}  // namespace varnel
