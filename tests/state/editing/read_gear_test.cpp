// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/read_gear.h"

#include <gtest/gtest.h>

#include "gear/catalogue/gear_catalogue.h"
#include "state/adjustments/gear_assignment.h"
#include "state/editing/list_badges.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

ImageRecord Added(int width, int height) {
    ImageRecord image;
    image.FileName = Text("a.jpg");
    image.Width = static_cast<std::int16_t>(width);
    image.Height = static_cast<std::int16_t>(height);
    image.Landscape = width >= height;
    return image;
}

CameraInfo Nikon(const char* lens) {
    CameraInfo origin;
    origin.Make = Text("NIKON CORPORATION");
    origin.Model = Text("NIKON D7100");
    origin.LensModel = Text(lens);
    return origin;
}

GearTable TableOf(const GearNames& names) {
    GearTable table;
    table.Resize(1);
    table(1) = BuiltGear(names);
    table.DefaultGearName = table(1).GearName;
    return table;
}

const GearNames canon{Text("Canon"), Text("EOS 5D"), Text("Sigma"), Text("EX 8 mm f:3.5")};
const GearNames nikon{Text("Nikon"), Text("D7100"), Text("Sigma"), Text("EX 4.5 mm f:2.8")};
const FoundCircle circle{{200.0, 200.0, 186.0}, 0.5, false};

TEST(ReadGear, IsTheFilesOrAGuessOrWhatThePhotoHas) {
    const struct {
        const char* what;
        CameraInfo origin;
        GearNames byDefault;
        ReadGear got;
        int gears;
    } rows[] = {
        {"named", Nikon("4.5mm f/2.8"), canon, ReadGear::Own, 2},
        {"tells nothing", {}, canon, ReadGear::Guess, 1},
        {"no fisheye", Nikon("24.0-105.0 mm f/4.0"), canon, ReadGear::Same, 1},
        {"has it", Nikon("4.5mm f/2.8"), nikon, ReadGear::Same, 1},
        {"a lens that tells nothing, on the gear's camera", Nikon(""), nikon, ReadGear::Same, 1},
        {"a lens that tells nothing, on another", Nikon(""), canon, ReadGear::Guess, 1}};
    for (const auto& row : rows) {
        GearTable table = TableOf(row.byDefault);
        std::vector<GearRecord> newGears;
        ImageRecord image = Added(600, 400);
        const ImageRecord before = image;
        EXPECT_EQ(GiveReadGear({row.origin}, table, newGears, image), row.got) << row.what;
        EXPECT_EQ(table.UpperBound(), row.gears) << row.what;
        EXPECT_EQ(static_cast<int>(newGears.size()), row.gears - 1) << row.what;
        EXPECT_EQ(image == before, row.got == ReadGear::Same) << row.what;
        EXPECT_EQ(IsGuessed(image), row.got == ReadGear::Guess) << row.what;
        EXPECT_EQ(MarksOf(image, false, {}).letters.contains(u'?'), IsGuessed(image)) << row.what;
    }
}

TEST(ReadGear, NoGuessTakesThePlaceOfALensOfOnesOwn) {
    GearTable table = TableOf(nikon);
    table(1).Lens = std::make_shared<const SampledLens>();
    std::vector<GearRecord> newGears;
    ImageRecord image = Added(600, 400);
    EXPECT_EQ(GiveReadGear({Nikon("6.1 mm f/3.5 Fisheye")}, table, newGears, image),
              ReadGear::Same);
    EXPECT_EQ(GiveReadGear({}, table, newGears, image), ReadGear::Guess);
}

TEST(ReadGear, OnlyWhatNobodyChangedIsUntouched) {
    const GearTable table = TableOf(canon);
    ImageRecord image = Added(600, 400);
    EXPECT_TRUE(IsUntouched(image, table));
    AssignGear(table(1), image);
    EXPECT_TRUE(IsUntouched(image, table));
    for (const auto& change :
         {+[](ImageRecord& record) { record.SettingsApplied = true; },
          +[](ImageRecord& record) { record.RotateX = 3.0F; },
          +[](ImageRecord& record) { record = Added(600, 400), record.GearName = Text("x"); }}) {
        ImageRecord changed = image;
        change(changed);
        EXPECT_FALSE(IsUntouched(changed, table));
    }
}

TEST(ReadGear, AFilmStaysOneAndItsKeysAreAdjustments) {
    GearTable table = TableOf(canon);
    std::vector<GearRecord> newGears;
    ImageRecord image = Added(600, 400);
    image.Film = FilmCourse{1.0, 4.0, {}, 2.0};
    EXPECT_TRUE(IsUntouched(image, table));
    EXPECT_EQ(GiveReadGear({{}, circle}, table, newGears, image), ReadGear::Guess);
    EXPECT_EQ(image.Film, (FilmCourse{1.0, 4.0, {}, 2.0}));
    image = Added(600, 400);
    image.Film = FilmCourse{0.0, {}, {{1.0, KeyEase::Linear, {}}}, 0.0};
    EXPECT_FALSE(IsUntouched(image, table));
}

// The square shows 13.6 mm of the sensor's 23.5 x 15.6, which its circle tells.
TEST(ReadGear, ACropIsSeenAsAPieceAndAsTheWhole) {
    const GearRecord gear = BuiltGear(nikon);
    ImageRecord image = Added(400, 400);
    GiveGearAndFrame(gear, circle, image);
    EXPECT_NEAR(image.SensorWidth, gear.ImageCircleRadius * 400.0F / 186.0F, 0.01F);
    EXPECT_TRUE(image.SettingsApplied) << "or the gear's sensor comes back";
    image.RotateX = 12.0F;
    const FrameChoice piece = FrameChoiceOf(gear, circle, image);
    EXPECT_EQ(piece.use, FrameUse::AsPicture);
    EXPECT_EQ(piece.other.SensorWidth, gear.SensorWidth);
    EXPECT_EQ(piece.other.RotateX, 12.0F);
    const FrameChoice whole = FrameChoiceOf(gear, circle, piece.other);
    EXPECT_EQ(whole.use, FrameUse::AsGear);
    EXPECT_EQ(whole.other, image);
    image.Ratio *= 1.1F;  // dragged
    EXPECT_EQ(FrameChoiceOf(gear, circle, image).use, FrameUse::Only);
    EXPECT_EQ(FrameChoiceOf(gear, {}, Added(600, 400)).use, FrameUse::Only);
}

}  // namespace
}  // namespace varnel
