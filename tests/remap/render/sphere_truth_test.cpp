// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Conversions into the projections of the sphere against the scene itself: its own rays are cast
// into the target projection, by formulas of this file.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "samples/fisheye_shot.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using enum Projection;

constexpr double degree = std::numbers::pi / 180.0;

// A quarter turn would carry the axis `from` onto the axis `to`.
void Swing(double& from, double& to, double degrees) {
    const double was = from;
    from = std::cos(degrees * degree) * was - std::sin(degrees * degree) * to;
    to = std::sin(degrees * degree) * was + std::cos(degrees * degree) * to;
}

Ray AroundAxis(double x, double y, double theta) {
    const double r = std::hypot(x, y);
    const double aside = r > 0.0 ? std::sin(theta) / r : 0.0;
    return {x * aside, y * aside, std::cos(theta)};
}

Ray ByAngles(double phi, double lambda) {
    return {std::sin(phi) * std::cos(lambda), std::sin(lambda), std::cos(phi) * std::cos(lambda)};
}

// x and y are in the projection's own units.
Ray PlaneRay(Projection projection, double x, double y) {
    const double r = std::hypot(x, y);
    switch (projection) {
        case Rectilinear:
            return {x, y, 1.0};
        case Stereographic:
        case LittlePlanet:
            return AroundAxis(x, y, 2.0 * std::atan(r / 2.0));
        case Panini: {
            const double phi = 2.0 * std::atan(x / 2.0);
            return ByAngles(phi, std::atan(y * (1.0 + std::cos(phi)) / 2.0));
        }
        case Cylindrical:
            return ByAngles(x, std::atan(y));
        case Mercator:
            return ByAngles(x, 2.0 * std::atan(std::exp(y)) - std::numbers::pi / 2.0);
        case Equirectangular:
            return ByAngles(x, y);
        case FisheyeEquidistant:
            return AroundAxis(x, y, r);
        case FisheyeEquisolid:
            return AroundAxis(x, y, 2.0 * std::asin(r / 2.0));
        default:
            return AroundAxis(x, y, std::asin(r));
    }
}

// A view of so many degrees whose half width is reach in the projection's units.
struct View {
    Projection projection;
    float outputAov;
    double reach;
    float x = 0.0F, y = 0.0F, z = 0.0F;  // turns
    double tilt = 0.0;                   // of the camera before them, down
};

std::string NameOf(const View& view) {
    return ToText(view.projection).toStdString() + (view.y != 0.0F ? "Turned" : "");
}

// A 16 mm equisolid lens whose circle holds 122 degrees to each side.
ImageRecord RecordOf(const View& view) {
    ImageRecord record = testing::FisheyeRecord();
    record.Ratio = 36.0F / 28.0F * 100.0F;
    record.OutputAOV = view.outputAov;
    record.RotateX = view.x;
    record.RotateY = view.y;
    record.RotateZ = view.z;
    return record;
}

BitmapHandle Photo(const Scene& scene, PixelSize size, int samples) {
    FisheyeShot shot;
    shot.size = size;
    shot.pixelsPerMillimetre = size.width / 36.0;
    shot.centreX = size.width / 2;
    shot.centreY = size.height / 2;
    shot.curve = {16.0F, 0.5F};
    shot.samples = samples;
    return TakeFisheye(scene, shot);
}

BitmapHandle Converted(const View& view, const Bitmap* photo) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(photo);
    SilentProgress progress;
    RenderContext context{bitmaps};
    Render(view.projection, RecordOf(view), SizeKind::Large, progress, context);
    return std::move(bitmaps.ResultBitmap);
}

BitmapHandle Truth(const View& view, const Scene& scene, PixelSize size, int samples) {
    const double unit = view.reach / (size.width / 2);
    const auto ray = [&](double column, double row) -> std::optional<Ray> {
        Ray seen = PlaneRay(view.projection, (column - size.width / 2) * unit,
                            (row - size.height / 2) * unit);
        Swing(seen.z, seen.y, -view.tilt);
        Swing(seen.z, seen.x, static_cast<double>(view.y));
        Swing(seen.z, seen.y, -static_cast<double>(view.x));
        Swing(seen.x, seen.y, static_cast<double>(view.z));
        return seen;
    };
    return TakeView(scene, size, samples, ray);
}

// Over what the photo shows, but for pixels that read beyond it: levels of a channel.
struct Errors {
    double most = 0.0, mean = 0.0, square = 0.0;
    int pixels = 0;

    double Psnr() const { return 10.0 * std::log10(255.0 * 255.0 / (square / (3.0 * pixels))); }
};

Errors Compare(const View& view, const Bitmap* result, const Bitmap* truth) {
    const PixelSize size = SizeOf(result);
    const auto map = InfoOf(view.projection).Make(RecordOf(view), FramesOf(RecordOf(view), size));
    const auto shown = [&](int x, int y) {
        const SourceOffset at = map->OffsetAt(x - size.width / 2, y - size.height / 2);
        return std::fabs(at.u) < size.width / 2 - 2 && std::fabs(at.v) < size.height / 2 - 2;
    };
    Errors errors;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            if (!shown(x, y)) {
                continue;
            }
            ++errors.pixels;
            const PixelColor is = testing::PixelAt(result, x, y);
            const PixelColor should = testing::PixelAt(truth, x, y);
            // blends are rounded down
            for (const double error : {is.red + 0.25 - should.red, is.green + 0.25 - should.green,
                                       is.blue + 0.25 - should.blue}) {
                errors.most = std::max(errors.most, std::fabs(error));
                errors.mean += std::fabs(error);
                errors.square += error * error;
            }
        }
    }
    errors.mean /= 3.0 * errors.pixels;
    return errors;
}

class SphereTruth : public ::testing::TestWithParam<View> {};

// One pixel is one to three levels here. Beside the errors of the plain conversions (see
// truth_test.cpp) the truth itself is rounded, up to half a level.
TEST_P(SphereTruth, OnlySamplingTellsTheConversionFromTheScene) {
    const PixelSize size{240, 160};
    const BitmapHandle photo = Photo(LookAtGradients, size, 1);
    const BitmapHandle result = Converted(GetParam(), photo.get());
    const BitmapHandle truth = Truth(GetParam(), LookAtGradients, size, 1);
    const Errors errors = Compare(GetParam(), result.get(), truth.get());
    EXPECT_GT(errors.pixels, size.width * size.height / 8);
    EXPECT_LT(errors.mean, 0.6);
    EXPECT_LT(errors.most, 2.0);
}

// A reach of about 1.19 units, as that of the straight view: the middle is as large in all.
std::vector<View> Views() {
    const double quarter = degree / 4.0;
    std::vector<View> views{
        {Stereographic, 123.0F, 2.0 * std::tan(123.0 * quarter)},
        {Panini, 123.0F, 2.0 * std::tan(123.0 * quarter)},
        {Cylindrical, 136.0F, 136.0 * degree / 2.0},
        {Mercator, 136.0F, 136.0 * degree / 2.0},
        {Equirectangular, 136.0F, 136.0 * degree / 2.0},
        {FisheyeEquidistant, 136.0F, 136.0 * degree / 2.0},
        {FisheyeEquisolid, 146.0F, 2.0 * std::sin(146.0 * quarter)},
        {Orthographic, 130.0F, std::sin(65.0 * degree)},
    };
    for (std::size_t n = 0; n < 8; ++n) {
        View turned = views[n];
        turned.x = -12.0F, turned.y = 20.0F, turned.z = -35.0F;
        views.push_back(turned);
    }
    views.push_back({LittlePlanet, 160.0F, 2.0 * std::tan(160.0 * quarter), 0, 0, 0, 90.0});
    return views;
}

INSTANTIATE_TEST_SUITE_P(Views, SphereTruth, ::testing::ValuesIn(Views()),
                         [](const auto& view) { return NameOf(view.param); });

TEST(SphereTruthOfTheRoom, IsThatOfTheStraightView) {
    const PixelSize size{480, 320};
    const BitmapHandle photo = Photo(LookAt, size, 3);
    const auto psnr = [&](const View& view) {
        const BitmapHandle result = Converted(view, photo.get());
        return Compare(view, result.get(), Truth(view, LookAt, size, 3).get()).Psnr();
    };
    const double straight = psnr({Rectilinear, 100.0F, std::tan(50.0 * degree)});
    EXPECT_GT(straight, 25.0);
    for (std::size_t n = 0; n < 8; ++n) {
        EXPECT_GT(psnr(Views()[n]), straight - 1.0) << NameOf(Views()[n]);
    }
}

}  // namespace
}  // namespace varnel
