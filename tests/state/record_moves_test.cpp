// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <limits>

#include "state/control_values.h"
#include "state/gear_assignment.h"

namespace varnel {
namespace {

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
    ImageRecord expected = SomeImage(true);
    expected.GearName = QStringLiteral("gear");
    expected.CameraBrand = QStringLiteral("camera brand");
    expected.CameraModel = QStringLiteral("camera model");
    expected.SensorWidth = 36.0F;
    expected.SensorHeight = 24.0F;
    expected.CameraData1 = 1.0F;
    expected.CameraData2 = 2.0F;
    expected.LensBrand = QStringLiteral("lens brand");
    expected.LensModel = QStringLiteral("lens model");
    expected.ImageCircleRadius = 11.5F;
    expected.LensShift = 0.25F;
    expected.LensData3 = 3.0F;
    expected.LensMapScale = 16.0F;
    expected.LensMapFactor = 0.5F;
    expected.OfsetX = 5.0F;
    expected.OfsetY = -7.0F;
    expected.Ratio = 150.0F;
    expected.InputAOV = 180.0F;
    expected.OutputAOV = 130.0F;
    expected.EffectVarnel = 100.0F;
    expected.EffectRectilinear = 100.0F;
    ImageRecord image = SomeImage(true);
    EXPECT_TRUE(AssignGear(SomeGear(), image));
    EXPECT_EQ(image, expected);
}

TEST(AssignGear, TurnsOffsetsAndTakesTheVerticalAngleForAnUprightFrame) {
    ImageRecord image = SomeImage(false);
    EXPECT_TRUE(AssignGear(SomeGear(), image));
    EXPECT_EQ(image.OfsetX, -7.0F);
    EXPECT_EQ(image.OfsetY, 5.0F);
    EXPECT_EQ(image.InputAOV, 120.0F);
    EXPECT_EQ(image.OutputAOV, 120.0F);
    EXPECT_EQ(image.SensorWidth, 36.0F);  // the sensor itself stays in landscape
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
    ImageRecord expected = images(2);
    expected.SettingsApplied = false;
    expected.GearName = QStringLiteral("other");
    ApplyGearToAll(images, QStringLiteral("other"));
    EXPECT_EQ(images(2), expected);
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

    ImageRecord expected = source;
    expected.Width = 40;
    expected.Height = 60;
    expected.Landscape = false;
    expected.Folder = upright.Folder;
    expected.FileName = upright.FileName;
    expected.NameSuffix = QString();
    expected.Orientation = 6;
    ApplySettingsToAll(images, 2);
    EXPECT_EQ(images(1), expected);
    EXPECT_EQ(images(2), source);
}

TEST(ValuesFor, RoundsToTheNearestWholeNumberTiesToEven) {
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
    EXPECT_EQ(ValuesFor(image), (ControlValues{0, 182, 130, 0, -2, 4, 0, Limits::max(), 0}));
    image.Projection = 1;
    EXPECT_EQ(ValuesFor(image).effect, 62);
    for (const std::int16_t index : std::initializer_list<std::int16_t>{2, 3}) {
        image.Projection = index;
        EXPECT_EQ(ValuesFor(image).projection, index);
        EXPECT_EQ(ValuesFor(image).effect, std::nullopt) << index;
    }
}

TEST(StoreControls, WritesEveryControlButOnlyTheChosenEffect) {
    const struct {
        int projection;
        int effect;
        std::int16_t storedProjection;
        float varnel, rectilinear;
    } cases[] = {
        {0, 40, 0, 40.0F, 66.0F}, {0, 0, 0, 0.1F, 66.0F},   {0, -5, 0, 0.1F, 66.0F},
        {1, 40, 1, 55.0F, 40.0F}, {1, 0, 1, 55.0F, 0.1F},   {1, 1, 1, 55.0F, 1.0F},
        {2, 40, 2, 55.0F, 66.0F}, {3, 40, 3, 55.0F, 66.0F}, {-1, 40, 3, 55.0F, 66.0F},
    };
    for (const auto& c : cases) {
        ImageRecord image = SomeImage(true);
        image.EffectVarnel = 55.0F;
        image.EffectRectilinear = 66.0F;
        ImageRecord expected = image;
        expected.Projection = c.storedProjection;
        expected.SettingsApplied = true;
        expected.InputAOV = 170.0F;
        expected.OutputAOV = 90.0F;
        expected.EffectVarnel = c.varnel;
        expected.EffectRectilinear = c.rectilinear;
        expected.RotateX = -1.0F;
        expected.RotateY = 2.0F;
        expected.RotateZ = -3.0F;
        expected.TranslateX = 4.0F;
        expected.TranslateY = -5.0F;
        StoreControls({c.projection, 170, 90, c.effect, -1, 2, -3, 4, -5}, image);
        EXPECT_EQ(image, expected) << c.projection << ' ' << c.effect;
    }
}

TEST(StoreControls, LeavesTheEffectAloneWhenThereIsNone) {
    ImageRecord image;
    image.EffectVarnel = 55.0F;
    StoreControls(ControlValues{}, image);
    EXPECT_EQ(image.EffectVarnel, 55.0F);
}

}  // namespace
}  // namespace varnel
