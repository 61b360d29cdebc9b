// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <limits>

#include "state/adjustments/control_values.h"
#include "state/adjustments/gear_assignment.h"
#include "tests/support/changed_fields.h"

namespace varnel {
namespace {

using testing::Changed;

// Every field differs from every other and from an empty record.
GearRecord SomeGear() {
    GearRecord gear;
    gear.GearName = QStringLiteral("gear");
    gear.CameraBrand = QStringLiteral("camera brand");
    gear.CameraModel = QStringLiteral("camera model");
    gear.SensorWidth = 36.0F;
    gear.SensorHeight = 24.0F;
    gear.CameraData1 = 1.0F;
    gear.CameraData2 = 2.0F;
    gear.LensBrand = QStringLiteral("lens brand");
    gear.LensModel = QStringLiteral("lens model");
    gear.LensDataVersion = 9;
    gear.ImageCircleRadius = 11.5F;
    gear.LensShift = 0.25F;
    gear.LensData3 = 3.0F;
    gear.LensFieldAngle = 220.0F;
    gear.hAOV = 180.0F;
    gear.vAOV = 120.0F;
    gear.LensMapScale = 16.0F;
    gear.LensMapFactor = 0.5F;
    gear.UserAdjusted = true;
    gear.OfsetX = 5.0F;
    gear.OfsetY = -7.0F;
    gear.GearRatio = 150.0F;
    return gear;
}

ImageRecord SomeImage(bool landscape) {
    ImageRecord image;
    image.Width = 600;
    image.Height = 400;
    image.Landscape = landscape;
    image.Projection = 2;
    image.RotateX = 11.0F;
    image.RotateY = 12.0F;
    image.RotateZ = 13.0F;
    image.TranslateX = 14.0F;
    image.TranslateY = 15.0F;
    image.Folder = QStringLiteral("folder");
    image.FileName = QStringLiteral("file");
    image.NameSuffix = QStringLiteral("suffix");
    return image;
}

TEST(AssignGear, CopiesTheGearAndResetsAnglesEffectsAndOffsetsOnly) {
    ImageRecord image = SomeImage(true);
    EXPECT_TRUE(AssignGear(SomeGear(), image));
    EXPECT_EQ(Changed(SomeImage(true), image),
              "GearName=gear CameraBrand=camera brand CameraModel=camera model SensorWidth=36 "
              "SensorHeight=24 CameraData1=1 CameraData2=2 LensBrand=lens brand "
              "LensModel=lens model ImageCircleRadius=11.5 LensShift=0.25 LensData3=3 "
              "LensMapScale=16 LensMapFactor=0.5 OfsetX=5 OfsetY=-7 Ratio=150 InputAOV=180 "
              "OutputAOV=130 EffectVarnel=100 EffectRectilinear=100");
}

// The gear's centre lies 5 to the right and 7 above the middle of a picture in landscape. Each row
// but the first of each half is what becomes of the first one's.
TEST(AssignGear, TurnsOffsetsWithThePicture) {
    const struct {
        bool storedLandscape;
        std::int16_t orientation;
        float x, y;
    } rows[] = {{true, 1, 5, -7},  {true, 2, -5, -7},  {true, 3, -5, 7},  {true, 4, 5, 7},
                {true, 5, -7, 5},  {true, 6, 7, 5},    {true, 7, 7, -5},  {true, 8, -7, -5},
                {false, 1, -7, 5}, {false, 2, 7, 5},   {false, 3, 7, -5}, {false, 4, -7, -5},
                {false, 5, 5, -7}, {false, 6, -5, -7}, {false, 7, -5, 7}, {false, 8, 5, 7}};
    for (const auto& row : rows) {
        ImageRecord image = SomeImage(row.storedLandscape == (row.orientation < 5));
        image.Width = image.Landscape ? 600 : 400;
        image.Height = image.Landscape ? 400 : 600;
        image.Orientation = row.orientation;
        AssignGear(SomeGear(), image);
        EXPECT_EQ(image.OfsetX, row.x) << row.storedLandscape << row.orientation;
        EXPECT_EQ(image.OfsetY, row.y) << row.storedLandscape << row.orientation;
        EXPECT_EQ(image.InputAOV, image.Landscape ? 180.0F : 120.0F);
        EXPECT_EQ(image.OutputAOV, image.Landscape ? 130.0F : 120.0F);
        EXPECT_EQ(image.SensorWidth, 36.0F);  // the sensor itself stays in landscape
        for (const auto& other : rows) {
            if (other.storedLandscape == row.storedLandscape) {
                ImageRecord again = image;
                TurnCentre(again, other.orientation);
                EXPECT_EQ(again.OfsetX, other.x) << row.orientation << other.orientation;
                EXPECT_EQ(again.OfsetY, other.y) << row.orientation << other.orientation;
            }
        }
    }
}

TEST(AssignGear, LimitsTheOutputAngleOnlyAboveItsLimit) {
    for (const auto& [input, output] :
         {std::pair{130.0F, 130.0F}, {130.5F, 130.0F}, {129.5F, 129.5F}}) {
        GearRecord gear = SomeGear();
        gear.hAOV = input;
        ImageRecord image = SomeImage(true);
        AssignGear(gear, image);
        EXPECT_EQ(image.InputAOV, input);
        EXPECT_EQ(image.OutputAOV, output);
    }
}

TEST(AssignGear, LeavesAppliedSettingsAlone) {
    ImageRecord image = SomeImage(true);
    image.SettingsApplied = true;
    const ImageRecord before = image;
    EXPECT_FALSE(AssignGear(SomeGear(), image));
    EXPECT_EQ(image, before);
}

TEST(ApplyGearToAll, NotesTheNameAndReopensEveryRecord) {
    RecordArray<ImageRecord> images;
    images.Append(SomeImage(true));
    images.Append(SomeImage(false));
    images(2).SettingsApplied = true;
    const ImageRecord before = images(2);
    ApplyGearToAll(images, QStringLiteral("other"));
    EXPECT_EQ(Changed(before, images(2)), "GearName=other SettingsApplied=False");
    EXPECT_EQ(images(1).GearName, QStringLiteral("other"));
}

TEST(ApplySettingsToAll, CopiesAllButSizeFileAndSuffixAndKeepsOffsetsUnturned) {
    RecordArray<ImageRecord> images;
    ImageRecord upright;
    upright.Orientation = 6;
    upright.Width = 40;
    upright.Height = 60;
    upright.Folder = QStringLiteral("elsewhere");
    upright.FileName = QStringLiteral("upright.jpg");
    images.Append(upright);
    images.Append(SomeImage(true));
    AssignGear(SomeGear(), images(2));
    images(2).SettingsApplied = true;
    const ImageRecord source = images(2);

    ApplySettingsToAll(images, 2);
    EXPECT_EQ(Changed(source, images(1)),
              "Width=40 Height=60 Landscape=False Folder=elsewhere FileName=upright.jpg "
              "NameSuffix= Orientation=6");
    EXPECT_EQ(images(2), source);
}

TEST(ValuesFor, AreTheRecordsOwnAndRoundToWholeOnesTiesToEven) {
    ImageRecord image;
    image.InputAOV = 181.75F;
    image.OutputAOV = 130.5F;
    image.RotateX = -2.5F;
    image.RotateY = 3.5F;
    image.RotateZ = -0.4F;
    image.TranslateX = 1e20F;
    image.TranslateY = std::numeric_limits<float>::quiet_NaN();
    image.EffectVarnel = 0.1F;
    image.EffectRectilinear = 62.5F;
    using Limits = std::numeric_limits<int>;
    EXPECT_EQ(Whole(ValuesFor(image)),
              (ControlValues{0, 182, 130, 0, -2, 4, 0, double{Limits::max()}, 0}));
    image.Projection = 1;
    EXPECT_EQ(ValuesFor(image).effect, 62.5);
    EXPECT_EQ(Whole(ValuesFor(image)).effect, 62);
    for (const std::int16_t index : std::initializer_list<std::int16_t>{2, 3}) {
        image.Projection = index;
        EXPECT_EQ(ValuesFor(image).projection, index);
        EXPECT_EQ(ValuesFor(image).effect, std::nullopt) << index;
    }
}

TEST(StoreControls, WritesEveryControlButOnlyTheChosenEffect) {
    const struct {
        int projection;
        std::optional<int> effect;
        const char *changedProjection, *changedEffect;
    } rows[] = {{0, 40, "Projection=0 ", "EffectVarnel=40 "},
                {0, 0, "Projection=0 ", "EffectVarnel=0.100000001 "},
                {0, -5, "Projection=0 ", "EffectVarnel=0.100000001 "},
                {0, std::nullopt, "Projection=0 ", ""},
                {1, 40, "Projection=1 ", "EffectRectilinear=40 "},
                {1, 0, "Projection=1 ", "EffectRectilinear=0.100000001 "},
                {1, 1, "Projection=1 ", "EffectRectilinear=1 "},
                {2, 40, "", ""},
                {3, 40, "Projection=3 ", ""},
                {-1, 40, "Projection=3 ", ""}};
    for (const auto& row : rows) {
        ImageRecord image = SomeImage(true);
        StoreControls({row.projection, 170, 90, row.effect, -1, 2, -3, 4, -5}, image);
        EXPECT_EQ(
            Changed(SomeImage(true), image),
            row.changedProjection + std::string("SettingsApplied=True InputAOV=170 OutputAOV=90 ") +
                row.changedEffect + "RotateX=-1 RotateY=2 RotateZ=-3 TranslateX=4 TranslateY=-5");
    }
}

TEST(StoreControls, LeavesNumbersThatWereNotChangedAsTheyAre) {
    ImageRecord image = SomeImage(true);
    image.Projection = 1;
    image.InputAOV = 181.75F;
    image.RotateX = 97.25F;
    image.EffectRectilinear = 62.5F;
    image.TranslateX = std::numeric_limits<float>::quiet_NaN();
    const ControlValues filled = ValuesFor(image);
    ControlValues values = filled;
    values.rotateY = 7.0;
    ImageRecord stored = image;
    StoreChanged(values, filled, stored);
    EXPECT_EQ(Changed(image, stored), "SettingsApplied=True RotateY=7");
}

TEST(TakeProjection, GivesTheUsualAngleOfTheProjectionInThePlaceOfTheUsualOneOnly) {
    ImageRecord image = SomeImage(true);
    image.InputAOV = 170.0F;
    image.OutputAOV = UsualOutputAov(image);
    EXPECT_EQ(image.OutputAOV, 130.0F);
    const struct {
        Projection projection;
        float angle;
    } rows[] = {{Projection::Mercator, 130.0F},
                {Projection::LittlePlanet, 270.0F},
                {Projection::Unrolled, 360.0F},
                {Projection::Rectilinear, 130.0F}};
    for (const auto& row : rows) {
        TakeProjection(row.projection, image);
        EXPECT_EQ(image.Projection, static_cast<int>(row.projection));
        EXPECT_EQ(image.OutputAOV, row.angle);
    }
    image.OutputAOV = 100.0F;
    TakeProjection(Projection::LittlePlanet, image);
    EXPECT_EQ(image.OutputAOV, 100.0F);
}

}  // namespace
}  // namespace varnel
