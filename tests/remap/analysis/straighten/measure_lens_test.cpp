// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/measure_lens.h"

#include <gtest/gtest.h>

#include "remap/analysis/straighten/view_bend.h"
#include "remap/projection/lens_spline.h"
#include "samples/fisheye_shot.h"

namespace varnel {
namespace {

constexpr PixelSize size{1500, 1500};
constexpr EdgePoint axis{754.0, 745.5};

LensView Uneven() {
    return {
        RadialCurve(
            [](double a) { return 480.0 * a * (1.0 - 0.03 * a * a - 0.004 * a * a * a * a); }, 1.7),
        axis};
}

// The sample room through a lens; red is drawn larger by two pixels at the rim.
BitmapHandle Photograph(const LensView& lens) {
    const auto ray = [&](double x, double y, double red) -> std::optional<Ray> {
        const EdgePoint place{x + 0.5, y + 0.5};
        const double out = Distance(place, axis);
        if (out > 700.0) {
            return std::nullopt;
        }
        const double inward = 1.0 - red * out * out;
        return lens.RayAt(
            {axis.x + (place.x - axis.x) * inward, axis.y + (place.y - axis.y) * inward});
    };
    BitmapHandle photo =
        TakeView(LookAt, size, 2, [&](double x, double y) { return ray(x, y, 0.0); });
    const BitmapHandle shifted = TakeView(LookAt, size, 2, [&](double x, double y) {
        return ray(x, y, 2.0 / (700.0 * 700.0 * 700.0));
    });
    for (int y = 0; y < size.height; ++y) {
        for (std::size_t x = 2; x < photo->ScanLine(y).size(); x += 3) {
            photo->ScanLine(y)[x] = shifted->ScanLine(y)[x];
        }
    }
    return photo;
}

TEST(MeasureLens, MeasuresTheLensOfARenderedPhoto) {
    const LensView lens = Uneven();
    const BitmapHandle photo = Photograph(lens);
    MeasureOptions options;
    options.lensName = QStringLiteral("mine");
    options.colour = true;
    const Measurement measured = MeasureLens({{photo.get(), QStringLiteral("a.jpg")}}, options);
    ASSERT_EQ(measured.error, MeasureError::None);
    ASSERT_TRUE(measured.circle);
    ASSERT_TRUE(measured.solved);
    const SolvedLens& solved = *measured.solved;
    EXPECT_TRUE(solved.improved);
    EXPECT_FALSE(solved.anglesFixed);
    EXPECT_LT(solved.heldOutAfter, 0.2);
    const double before = ViewBend(lens, TypicalFisheye(size, *measured.circle));
    const double after = ViewBend(lens, solved.lens);
    RecordProperty("bend", std::to_string(before) + " -> " + std::to_string(after) + " stated " +
                               std::to_string(solved.expectedBend));
    EXPECT_LT(after, 3.0 * solved.expectedBend);
    EXPECT_LT(after, 0.2 * before);
    EXPECT_EQ(measured.lens.unit, SampledLens::Unit::CircleRadii);
    EXPECT_EQ(measured.lens.origin.photos, QStringList{QStringLiteral("a.jpg")});
    const LensSpline spline(measured.lens);
    EXPECT_NEAR(spline.RadiusAt(1.0) * measured.pixelsPerUnit, solved.lens.curve.Radius(1.0), 0.02);
    ASSERT_TRUE(measured.colour);
    EXPECT_NEAR(measured.colour->blue.atRim, 0.0, 0.1);
    const ColourShift& red = measured.colour->red.shift;
    EXPECT_NEAR(red.first + red.third + red.fifth,
                2.0 * std::pow(lens.curve.Radius(1.0) / 700.0, 3), 0.2);
}

TEST(MeasureLens, SaysWhatItLacks) {
    EXPECT_EQ(MeasureLens({}, {}).error, MeasureError::NoPhoto);
    const BitmapHandle grey = NewBitmap({400, 300});
    const BitmapHandle other = NewBitmap({300, 400});
    EXPECT_EQ(MeasureLens({{grey.get(), {}}}, {}).error, MeasureError::TooFewEdges);
    EXPECT_EQ(MeasureLens({{grey.get(), {}}, {other.get(), {}}}, {}).error,
              MeasureError::SizesDiffer);
}

}  // namespace
}  // namespace varnel
