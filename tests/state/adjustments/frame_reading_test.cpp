// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/frame_reading.h"

#include <gtest/gtest.h>

#include <memory>
#include <numbers>

#include "gear/catalogue/gear_catalogue.h"
#include "remap/projection/geometry.h"
#include "state/adjustments/gear_assignment.h"
#include "tests/support/lenses.h"

namespace varnel {
namespace {

// 36 x 24 mm, and a circle of 11.16 mm at 90 degrees.
ImageRecord Photo(std::int16_t width, std::int16_t height) {
    ImageRecord image;
    image.Width = width;
    image.Height = height;
    image.Landscape = width >= height;
    GearRecord gear;
    gear.SensorWidth = 36.0F;
    gear.SensorHeight = 24.0F;
    gear.ImageCircleRadius = 11.16F;
    gear.LensMapScale = 15.78F;
    gear.LensMapFactor = 0.5F;
    gear.OfsetX = 2.0F;
    FillAngles(gear);
    AssignGear(gear, image);
    return image;
}

const struct {
    const char* name;
    std::int16_t width, height;
    std::optional<FoundCircle> found;
    GearSource source;
    Doubts doubts;
    float sensorWidth, sensorHeight, ratio;
} frames[] = {{"whole", 3000, 2000, {}, GearSource::Exif, {}, 36.0F, 24.0F, 161.29F},
              {"square, reduced",
               1600,
               1600,
               FoundCircle{{798, 812, 744}, 1},
               GearSource::Circle,
               {},
               24.0F,
               24.0F,
               107.53F},
              {"square out of the middle",
               1000,
               1000,
               FoundCircle{{500, 500, 744}, 1},
               GearSource::Circle,
               {},
               15.0F,
               15.0F,
               67.2F},
              {"upright piece",
               1600,
               2000,
               FoundCircle{{798, 1012, 744}, 1},
               GearSource::Circle,
               {},
               30.0F,
               24.0F,
               134.41F},
              {"only roughly",
               1600,
               1600,
               FoundCircle{{798, 812, 744}, 22, true},
               GearSource::Circle,
               {true, true, false},
               24.0F,
               24.0F,
               107.53F},
              {"square without a circle",
               1600,
               1600,
               {},
               GearSource::Exif,
               {true, true, false},
               24.0F,
               24.0F,
               107.53F},
              {"film shape without a circle",
               1920,
               1080,
               {},
               GearSource::Exif,
               {true, true, false},
               36.0F,
               20.25F,
               161.29F},
              {"whole, circle about there",
               3000,
               2000,
               FoundCircle{{1508, 1003, 935}, 1},
               GearSource::Exif,
               {},
               36.0F,
               24.0F,
               161.29F},
              {"whole, circle elsewhere",
               3000,
               2000,
               FoundCircle{{1540, 1003, 930}, 1},
               GearSource::Circle,
               {},
               36.0F,
               24.0F,
               161.29F},
              {"whole, circle perhaps elsewhere",
               3000,
               2000,
               FoundCircle{{1540, 1003, 930}, 12},
               GearSource::Exif,
               {},
               36.0F,
               24.0F,
               161.29F},
              {"whole, circle roughly elsewhere",
               3000,
               2000,
               FoundCircle{{1540, 1003, 930}, 1, true},
               GearSource::Exif,
               {},
               36.0F,
               24.0F,
               161.29F}};

TEST(ReadFrame, TakesTheCircleWhereThePictureIsNotTheWholeSensor) {
    for (const auto& row : frames) {
        SCOPED_TRACE(row.name);
        ImageRecord image = Photo(row.width, row.height);
        const ImageRecord before = image;
        const FrameReading reading = ReadFrame(row.found, image);
        EXPECT_EQ(reading.source, row.source);
        EXPECT_EQ(reading.doubts, row.doubts);
        EXPECT_NEAR(image.SensorWidth, row.sensorWidth, 0.01);
        EXPECT_NEAR(image.SensorHeight, row.sensorHeight, 0.01);
        EXPECT_NEAR(image.Ratio, row.ratio, 0.02);
        if (row.source == GearSource::Circle) {
            const ImageCircle circle = CircleOf(image, {row.width, row.height});
            EXPECT_NEAR(circle.x, row.found->x, 0.01);
            EXPECT_NEAR(circle.y, row.found->y, 0.01);
            EXPECT_NEAR(circle.radius, row.found->radius, 0.01);
        } else if (!reading.cropped) {
            EXPECT_EQ(image, before);
        }
    }
    ImageRecord nominal = Photo(1600, 1600);
    nominal.ImageCircleRadius = 12.0F;
    ReadFrame(FoundCircle{{800, 800, 744}, 1}, nominal);
    EXPECT_NEAR(nominal.SensorWidth, 24.0, 0.01) << "no piece is larger than the sensor";
    ImageRecord placed = Photo(3000, 2000);
    SampledLens lens = testing::SampledLensOf(placed);
    lens.centre = {1510.0, 995.0, {6000, 4000}};
    placed.Lens = std::make_shared<const SampledLens>(lens);
    placed.OfsetX = 0.0F;
    EXPECT_NEAR(CircleOf(placed, {3000, 2000}).x, 755.0, 0.01) << "the lens states its axis";
    EXPECT_NEAR(CircleOf(placed, {3000, 2000}).y, 1502.5, 0.01);
    TakeCircle({760.0, 1500.0, 900.0}, placed);
    EXPECT_NEAR(CircleOf(placed, {3000, 2000}).x, 760.0, 0.01);
    EXPECT_NEAR(CircleOf(placed, {3000, 2000}).y, 1500.0, 0.01);
    ImageRecord square = Photo(1600, 1600);
    ReadFrame(FoundCircle{{800, 800, 744}, 1}, square);
    EXPECT_NEAR(square.InputAOV, 180.0, 0.2) << "of the piece, which has the whole circle";
}

TEST(GuessFrame, SpansTheCircleOrElseTheDiagonal) {
    const struct {
        std::int16_t width, height;
        std::optional<FoundCircle> found;
        double radius;
        Doubts doubts;
    } rows[] = {{1600, 1200, FoundCircle{{790, 610, 500}, 1}, 500.0, {false, false, true}},
                {1200, 1600, FoundCircle{{590, 810, 500}, 15, true}, 500.0, {true, true, true}},
                {1600, 1200, {}, 1000.0, {true, true, true}},
                {1200, 1600, {}, 1000.0, {true, true, true}}};
    for (const auto& row : rows) {
        ImageRecord image;
        image.Width = row.width;
        image.Height = row.height;
        image.Landscape = row.width >= row.height;
        const FrameReading reading = GuessFrame({}, row.found, image);
        EXPECT_EQ(reading.source, GearSource::Guess);
        EXPECT_EQ(reading.doubts, row.doubts);
        EXPECT_EQ(image.GearName, GuessedGearName());
        EXPECT_EQ(LensMappingKind(image.LensBrand.toStdString(), image.LensModel.toStdString()),
                  LensKind::Sin);
        const double millimetres = LensRadius(LensKind::Sin, std::numbers::pi / 2.0,
                                              {image.LensMapScale, image.LensMapFactor});
        const double perMillimetre =
            PixelsPerUnit(image.Width, image.Landscape, {image.SensorWidth, image.SensorHeight});
        EXPECT_NEAR(millimetres * perMillimetre, row.radius, 0.01);
        const ImageCircle circle = CircleOf(image, {row.width, row.height});
        EXPECT_NEAR(circle.radius, row.radius, 0.01);
        EXPECT_NEAR(circle.x, row.found ? row.found->x : row.width / 2.0, 0.01);
    }
}

// 62 pixels a millimetre on squares of 1600 pixels, which show 25.8 x 25.8 mm.
TEST(AssignGear, ALensThatStatesItsScaleSaysWhichPieceIsShown) {
    SampledLens lens = testing::SampledLensOf(Photo(3000, 2000));
    lens.centre = LensCentre{800.0, 800.0, {1600, 1600}};
    lens.pixelsPerUnit = 62.0;
    GearRecord gear;
    gear.SensorWidth = 36.0F;
    gear.SensorHeight = 24.0F;
    GiveLens(std::make_shared<const SampledLens>(lens), gear);
    gear.hAOV = 150.0F;  // by hand
    ImageRecord square = Photo(800, 800);
    AssignGear(gear, square);
    EXPECT_NEAR(square.SensorWidth, 1600.0F / 62.0F, 1e-3F);
    EXPECT_NEAR(square.SensorHeight, 1600.0F / 62.0F, 1e-3F);
    ImageRecord whole = Photo(3000, 2000);
    AssignGear(gear, whole);
    EXPECT_EQ(whole.SensorWidth, 36.0F);
    EXPECT_EQ(whole.InputAOV, 150.0F);
}

}  // namespace
}  // namespace varnel
