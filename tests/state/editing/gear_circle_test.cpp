// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/gear_circle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "gear/catalogue/gear_catalogue.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {
namespace {

GearRecord Gear(const char* name) {
    GearRecord gear;
    gear.GearName = QString::fromLatin1(name);
    gear.OfsetX = 12.5F;
    gear.OfsetY = -4.0F;
    gear.GearRatio = 160.0F;
    return gear;
}

ImageRecord Photo(PixelSize size, int orientation) {
    ImageRecord image;
    image.Width = static_cast<std::int16_t>(size.width);
    image.Height = static_cast<std::int16_t>(size.height);
    image.Landscape = size.width >= size.height;
    image.Orientation = static_cast<std::int16_t>(orientation);
    return image;
}

TEST(CircleOf, IsWhereTheGearsNumbersPutIt) {
    struct {
        PixelSize size;
        int orientation;
        double x, y;
    } const rows[] = {
        {{3000, 2000}, 1, 1537.5, 992.0},  {{3000, 2000}, 3, 1462.5, 1008.0},
        {{2000, 3000}, 6, 1008.0, 1537.5}, {{2000, 3000}, 8, 992.0, 1462.5},
        {{2000, 3000}, 1, 992.0, 1537.5},
    };
    for (const auto& row : rows) {
        ImageRecord image = Photo(row.size, row.orientation);
        AssignGear(Gear("A"), image);
        const ImageCircle circle = CircleOf(image, row.size);
        EXPECT_NEAR(circle.x, row.x, 0.01) << row.orientation;
        EXPECT_NEAR(circle.y, row.y, 0.01) << row.orientation;
        EXPECT_NEAR(circle.radius, 937.5, 0.01);
        EXPECT_EQ(GearCircleFor(circle, image, row.size), (GearCircle{12.5F, -4.0F, 160.0F}))
            << row.orientation;
    }
    EXPECT_EQ(CircleOf(ImageRecord(), {3000, 2000}).radius, 0.0);
}

TEST(GearCircleFor, RoundsToTenthsWithoutANegativeZero) {
    const GearCircle circle =
        GearCircleFor({1499.999, 1004.68, 800.0}, Photo({3000, 2000}, 1), {3000, 2000});
    EXPECT_EQ(circle, (GearCircle{0.0F, 2.3F, 187.5F}));
    EXPECT_FALSE(std::signbit(circle.OfsetX));
}

// 36 x 24 mm; the picture is cut to a square and reduced.
TEST(PutCircle, TakesThePieceOfTheSensorWhicheverWasThereBefore) {
    GearRecord gear = Gear("A");
    gear.SensorWidth = 36.0F;
    gear.SensorHeight = 24.0F;
    gear.ImageCircleRadius = 11.16F;
    gear.LensMapScale = 15.78F;
    gear.LensMapFactor = 0.5F;
    gear.hAOV = 170.0F;
    ImageRecord image = Photo({1600, 1600}, 1);
    AssignGear(gear, image);
    const ImageRecord before = image;
    struct {
        double radius;
        float side, ratio, angle;
    } const rows[] = {{744.0, 24.0F, 107.53F, 180.04F},
                      {1488.0, 12.0F, 53.76F, 89.4F},
                      {744.0, 24.0F, 107.53F, 180.04F}};
    for (const auto& row : rows) {
        PutCircle({798.0, 812.0, row.radius}, gear, image);
        EXPECT_NEAR(image.SensorWidth, row.side, 0.01F);
        EXPECT_EQ(image.SensorHeight, image.SensorWidth);
        EXPECT_NEAR(image.Ratio, row.ratio, 0.01F);
        EXPECT_NEAR(image.OfsetY, 7.5F, 0.001F);
        EXPECT_TRUE(image.SettingsApplied);
        EXPECT_NEAR(image.InputAOV, row.angle, 0.1F);  // the piece's
        EXPECT_EQ(image.OutputAOV, std::min(image.InputAOV, 130.0F));
    }
    image.InputAOV = 150.0F;  // both by hand
    image.OutputAOV = 90.0F;
    PutCircle({798.0, 812.0, 1000.0}, gear, image);
    EXPECT_EQ(image.InputAOV, 150.0F);
    EXPECT_EQ(image.OutputAOV, 90.0F);
    image.InputAOV = before.InputAOV;
    image.OutputAOV = before.OutputAOV;
    ResetCircle(gear, image);
    image.SettingsApplied = false;
    EXPECT_EQ(image, before);
}

TEST(TakeCircle, ReachesTheCurrentPhotoAndUnadjustedOnesOfTheGear) {
    GearRecord gear = Gear("A");
    RecordArray<ImageRecord> images;
    for (int n = 1; n <= 4; ++n) {
        images.Append(Photo({2000, 3000}, 6));
        AssignGear(Gear(n == 4 ? "B" : "A"), images(n));
        images(n).RotateX = 7.0F;
    }
    images(1).SettingsApplied = true;  // the current one
    images(2).SettingsApplied = true;
    EXPECT_EQ(TakeCircle({1.0F, 2.0F, 150.0F}, gear, images, 1), 2);
    EXPECT_TRUE(gear.UserAdjusted);
    EXPECT_EQ(gear.GearRatio, 150.0F);
    for (const int n : {1, 3}) {
        EXPECT_EQ(images(n).OfsetX, -2.0F) << n;
        EXPECT_EQ(images(n).OfsetY, 1.0F) << n;
        EXPECT_EQ(images(n).Ratio, 150.0F) << n;
        EXPECT_EQ(images(n).RotateX, 7.0F) << n;
    }
    EXPECT_EQ(images(2).Ratio, 160.0F);
    EXPECT_EQ(images(4).Ratio, 160.0F);
}

TEST(TakeCircle, KeepsThePieceOfTheSensorForPicturesOfItsShape) {
    GearRecord gear = Gear("A");
    FillGearFromCatalogue({QStringLiteral("Canon"), QStringLiteral("EOS 5D"),
                           QStringLiteral("Sigma"), QStringLiteral("EX 8 mm f:3.5")},
                          gear);
    RecordArray<ImageRecord> images;
    for (const PixelSize size : {PixelSize{1600, 1600}, {1600, 1600}, {3000, 2000}}) {
        images.Append(Photo(size, 1));
        AssignGear(gear, images(images.UpperBound()));
    }
    const float wholeWidth = gear.SensorWidth;
    const ImageCircle circle{800.0, 800.0, 744.0};
    PutCircle(circle, gear, images(1));
    EXPECT_EQ(TakeCircle(GearCircleFor(circle, images(1), {1600, 1600}), gear, images, 1), 2);
    EXPECT_LT(gear.SensorWidth, 0.7F * wholeWidth);
    EXPECT_EQ(gear.Own.SensorWidth, images(1).SensorWidth);
    EXPECT_EQ(images(2).SensorWidth, images(1).SensorWidth);
    EXPECT_EQ(images(2).Ratio, gear.GearRatio);
    EXPECT_EQ(images(2).InputAOV, gear.hAOV);
    EXPECT_EQ(images(3).SensorWidth, wholeWidth) << "of another shape";
    // A new photo of that shape needs no circle, and a whole one has the camera's sensor again.
    ImageRecord next = Photo({800, 800}, 1), whole = Photo({3000, 2000}, 1);
    AssignGear(gear, next);
    EXPECT_FALSE(ReadFrame(std::nullopt, next).cropped);
    EXPECT_EQ(next.SensorWidth, images(1).SensorWidth);
    AssignGear(gear, whole);
    const double radius = static_cast<double>(gear.ImageCircleRadius / wholeWidth) * 3000.0;
    ReadFrame(FoundCircle{{1500.0, 1000.0, radius}, 1.0}, whole);
    EXPECT_NEAR(whole.SensorWidth, wholeWidth, 0.01F);
}

}  // namespace
}  // namespace varnel
