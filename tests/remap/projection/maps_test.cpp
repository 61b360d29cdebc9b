// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Source positions worked out by hand (single precision where it is meant), because pictures cannot
// show a slightly wrong pi.

#include <gtest/gtest.h>

#include <cmath>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "remap/projection/maps/equidistance_map.h"
#include "remap/projection/maps/horizon_map.h"
#include "remap/projection/maps/rectilinear_map.h"
#include "remap/projection/maps/varnel_map.h"
#include "remap/projection/projection_info.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

void ExpectNear(const SourceOffset& offset, double u, double v) {
    EXPECT_NEAR(offset.u, u, 1e-9);
    EXPECT_NEAR(offset.v, v, 1e-9);
}

RectilinearView Landscape(float effect = 100.0F) {
    const SourceFrame photo{{1000, 800}, true, {36.0F, 24.0F}};
    return {photo, SameAs(photo), LensKind::Sin, {16.0F, 0.5F}, 90.0F, effect};
}

TEST(RectilinearMap, HandWorkedPositions) {
    const RectilinearMap full(Landscape());
    EXPECT_EQ(full.Radius().TanStep(), 0.002);
    ExpectNear(full.At(0, 0), 0.0, 0.0);
    ExpectNear(full.At(3, 4), 1.3332833365622565, 1.777711115416342);
    ExpectNear(full.At(-300, -400), -102.04891529735728, -136.06522039647635);

    const RectilinearMap half(Landscape(50.0F));
    EXPECT_EQ(half.Radius().TanStep(), 0.00082843);
    ExpectNear(half.At(3, 4), 1.0833422950601235, 1.4444563934134977);
    ExpectNear(half.At(500, 0), 170.0820499273052, 0.0);

    const SourceFrame photo{{800, 1000}, false, {36.0F, 24.0F}};
    const RectilinearMap upright(
        {photo, SameAs(photo), LensKind::Tan, {26.1F, 3.0F}, 110.0F, 80.0F});
    ExpectNear(upright.At(-300, -400), -54.84333975671072, -73.12445300894763);
}

TEST(RotatedRectilinearMap, HandWorkedPositions) {
    const CameraMove move{10.0F, -20.0F, 5.0F, 2.5F, -1.0F};
    const RotatedRectilinearMap map(Landscape(50.0F), move);
    EXPECT_EQ(map.ShiftX(), -25.0F);
    EXPECT_EQ(map.ShiftY(), 8.0F);
    ExpectNear(map.At(100, -50), -44.26241447287427, -57.05680897369501);
    ExpectNear(map.At(-400, 300), -220.9125157398604, 52.860554395825005);
}

TEST(RotatedRectilinearMap, ARayStraightSidewaysFindsNothingAndABackwardOneKeepsItsDirection) {
    // A quarter turn to the right by 40 degrees at a wide angle: rays on the left stay in front,
    // those far on the right point backwards and still go to the right.
    RectilinearView view = Landscape();
    view.outputAov = 170.0F;
    const RotatedRectilinearMap map(view, {0.0F, 40.0F, 0.0F, 0.0F, 0.0F});
    EXPECT_GT(map.At(499, 10).u, 0.0);
    const SourceOffset nowhere = NowhereOnSource();
    EXPECT_TRUE(std::isinf(nowhere.u) && std::isinf(nowhere.v));
}

TEST(SampledLens, DrawsAsItsFormulaAndAroundItsAxis) {
    constexpr PixelSize size{6000, 4000};
    ImageRecord formula = testing::FisheyeRecord();
    formula.RotateX = 10.0F;
    formula.EffectRectilinear = 80.0F;
    ImageRecord sampled = formula;
    sampled.Lens = std::make_shared<const SampledLens>(testing::SampledLensOf(formula));
    ImageRecord moved = sampled;
    moved.Lens = testing::OffCentreLensOf(formula, size);
    for (const Projection projection : {Projection::Rectilinear, Projection::Equidistance}) {
        const auto map = [&](const ImageRecord& record) {
            return InfoOf(projection).Make(record, FramesOf(record, size));
        };
        for (const auto& [x, y] : {std::pair{0, 0}, {1, 0}, {-700, 900}, {1300, -900}}) {
            const SourceOffset expected = map(formula)->OffsetAt(x, y);
            const SourceOffset offset = map(sampled)->OffsetAt(x, y);
            EXPECT_NEAR(offset.u, expected.u, 0.3) << "the effect is by the sine form there";
            EXPECT_NEAR(offset.v, expected.v, 0.3);
            const SourceOffset around = map(moved)->OffsetAt(x, y);
            EXPECT_NEAR(around.u, offset.u + 0.3, 1e-9);
            EXPECT_NEAR(around.v, offset.v + 0.4, 1e-9);
        }
    }
    EXPECT_EQ(FramesOf(moved, size).source.shift.x, 7.0);
    EXPECT_EQ(FramesOf(moved, size).source.shift.y, -4.0);
    moved.OfsetX = 0.25F;  // 1.5 pixels
    EXPECT_NEAR(FramesOf(moved, size).source.fraction.x, -0.2, 1e-6);
    EXPECT_EQ(FramesOf(moved, size).source.shift.x, 9.0);
    EXPECT_EQ(FramesOf(moved, {4000, 4000}).source.shift.x, 1.0) << "a picture of another shape";
}

TEST(SampledLens, PutsEachColourAtItsRadius) {
    constexpr PixelSize size{6000, 4000};
    ImageRecord record = testing::FisheyeRecord();
    record.EffectRectilinear = 80.0F;
    SampledLens lens = testing::SampledLensOf(record);
    lens.red = {0.0, 0.02, 0.01};
    record.Lens = std::make_shared<const SampledLens>(lens);
    Frames frames = FramesOf(record, size);
    const auto radius = [&](Projection projection, LensColour colour, int x) {
        frames.source.colour = colour;
        return InfoOf(projection).Make(record, frames)->OffsetAt(x, 0).u;
    };
    for (const Projection projection : {Projection::Rectilinear, Projection::Equidistance}) {
        EXPECT_EQ(radius(projection, LensColour::Blue, 900),
                  radius(projection, LensColour::Green, 900));
    }
    // The angle from the green radius: pixels for each millimetre times that of the lens.
    const EquidistanceMap map(EquidistanceViewOf(record, frames));
    const double angle = 900 * map.FrameAngle() / map.ReferenceRadius() / 2.0;
    const double perMillimetre = size.width / static_cast<double>(record.SensorWidth);
    EXPECT_NEAR(radius(Projection::Equidistance, LensColour::Red, 900) -
                    radius(Projection::Equidistance, LensColour::Green, 900),
                perMillimetre * lens.red->At(angle), 1e-9);
}

TEST(RectilinearMap, AZeroInItsNumbersIsToldByName) {
    const auto failure = [](const RectilinearView& view) -> std::string {
        try {
            const RotatedRectilinearMap map(view, {});
        } catch (const DivisionByZeroError& error) {
            return ErrorText(ReasonFor(error)).toStdString();
        }
        return {};
    };
    RectilinearView view = Landscape();
    view.source.sensor.width = 0.0F;
    EXPECT_EQ(failure(view), "Division by zero: SensorWidth is 0");
    view = Landscape();
    view.curve.factor = 0.0F;
    EXPECT_EQ(failure(view), "Division by zero: LensMapFactor is 0");
    view = Landscape(0.0F);
    EXPECT_NE(failure(view).find("effect"), std::string::npos);
    view = Landscape();
    view.source.size = {1, 800};
    EXPECT_NE(failure(view).find("width"), std::string::npos);
}

TEST(EquidistanceMap, HandWorkedPositionsAndReferenceRadius) {
    const SourceFrame photo{{1000, 800}, true, {36.0F, 24.0F}, {}, 157.89F};
    const EquidistanceMap wide({photo, SameAs(photo), LensKind::Sin, {16.0F, 0.5F}, 11.4F, 180.0F});
    EXPECT_NEAR(wide.FrameAngle(), 4.7123889803850005, 1e-15);
    EXPECT_EQ(wide.ReferenceRadius(), 317);
    ExpectNear(wide.At(-120, 90), -188.10020778208175, 141.07515583656132);

    const SourceFrame high{{800, 1000}, false, {36.0F, 24.0F}, {}, 100.0F};
    EquidistanceView upright{high, SameAs(high), LensKind::Tan, {26.1F, 3.0F}, 15.0F, 120.0F};
    EXPECT_EQ(EquidistanceMap(upright).ReferenceRadius(), 500);
    ExpectNear(EquidistanceMap(upright).At(-120, 90), -73.490381384703, 55.11778603852724);
    upright.source.ratio = 100.0001F;
    EXPECT_EQ(EquidistanceMap(upright).ReferenceRadius(), 417);
}

TEST(EquidistanceMap, AZeroInItsNumbersIsToldByName) {
    const SourceFrame photo{{800, 600}, true, {36.0F, 24.0F}, {}, 120.0F};
    const EquidistanceView good{photo, SameAs(photo), LensKind::Tan, {26.1F, 3.0F}, 15.0F, 120.0F};
    const auto fails = [&](auto change) {
        EquidistanceView view = good;
        change(view);
        EXPECT_THROW(EquidistanceMap{view}, DivisionByZeroError);
    };
    EXPECT_NO_THROW(EquidistanceMap{good});
    fails([](EquidistanceView& view) { view.source.sensor.width = 0.0F; });
    fails([](EquidistanceView& view) { view.source.sensor.height = 0.0F; });
    fails([](EquidistanceView& view) { view.imageCircleRadius = 0.0F; });
    fails([](EquidistanceView& view) { view.curve.factor = 0.0F; });
}

CircleView Circle(PixelSize size, float ratio, float effect = 100.0F, bool landscape = true) {
    const SourceFrame photo{size, landscape, {}, {}, ratio};
    return {photo, SameAs(photo), effect};
}

TEST(MeasureCircle, TheCirclesRadiusFollowsRatioEffectAndOrientation) {
    EXPECT_EQ(MeasureCircle(Circle({6000, 4000}, 186.1F)).radius, 1612.0364990234375F);
    EXPECT_EQ(MeasureCircle(Circle({1000, 800}, 125.0F, 80.0F)).radius, 500.0F);
    EXPECT_EQ(MeasureCircle(Circle({800, 1000}, 125.0F, 100.0F, false)).radius, 400.0F);
    EXPECT_THROW(MeasureCircle(Circle({1000, 800}, 0.0F)), DivisionByZeroError);
    EXPECT_THROW(MeasureCircle(Circle({1000, 800}, 125.0F, 0.0F)), DivisionByZeroError);
    EXPECT_THROW(MeasureCircle(Circle({1000, 800}, 1e-37F)), OverflowError);
}

TEST(VarnelMap, StretchesTheChordToTheFullWidth) {
    const VarnelMap map(Circle({1000, 800}, 125.0F));  // R = 400
    ExpectNear(map.At(100, 240), 80.0, 240.0);         // chord 320 of 400
    ExpectNear(map.At(400, 240), 320.0, 240.0);        // the circle's edge
    ExpectNear(map.At(77, 0), 77.0, 0.0);
    EXPECT_EQ(map.At(0, 123).u, 0.0);
    EXPECT_FALSE(map.Blank(400));
    EXPECT_TRUE(map.Blank(401));
}

TEST(VarnelMap, TheRowOnTheEdgeIsMirrored) {
    const VarnelMap map(Circle({1000, 800}, 125.0F));
    ExpectNear(map.At(50, 400), -50.0, 400.0);
}

TEST(HorizonMap, HandWorkedPositions) {
    const HorizonMap map(Circle({400, 400}, 100.0F));
    ExpectNear(map.At(100, 200), 200.0 * std::cos(1.5 * 3.1415927410125732 + 1.5707963705062866),
               200.0 * std::sin(1.5 * 3.1415927410125732 + 1.5707963705062866));
    EXPECT_NEAR(map.At(0, 50).v, -50.0, 1e-9);     // toward the bottom
    EXPECT_NEAR(map.At(100, 50).u, 50.0, 1e-3);    // to the right
    EXPECT_NEAR(map.At(200, 50).v, 50.0, 1e-3);    // toward the top
    EXPECT_NEAR(map.At(100, -50).u, -50.0, 1e-3);  // negative radii: opposite
    const HorizonMap wide(Circle({1000, 800}, 100.0F));
    ExpectNear(wide.At(100, 200), 117.55707450550834, -161.80338140380863);
}

TEST(HorizonMap, TheRowDivisorFollowsTheProportions) {
    struct {
        PixelSize size;
        int divisor;
    } const rows[] = {{{6000, 4000}, 1}, {{1000, 1000}, 2}, {{4000, 6000}, 2}, {{3141, 1000}, 1}};
    for (const auto& row : rows) {
        EXPECT_EQ(HorizonMap(Circle(row.size, 100.0F)).RowDivisor(), row.divisor);
    }
    EXPECT_THROW(HorizonMap(Circle({3142, 1000}, 100.0F)), DivisionByZeroError);
}

TEST(HorizonMap, RowsAreRealQuotientsRoundedOnceToEven) {
    const HorizonMap map(Circle({1000, 1000}, 100.0F));  // divisor 2, centre row 500
    EXPECT_EQ(map.OutputRow(1), 500);                    // 499.5 -> 500
    EXPECT_EQ(map.OutputRow(3), 498);                    // 498.5 -> 498
    EXPECT_EQ(map.OutputRow(-4), 502);
}

}  // namespace
}  // namespace varnel
