// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/presets.h"

#include <gtest/gtest.h>

#include "state/adjustments/adjustment_set.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

Preset Own(const char* name) {
    return {Text(name), {{Text("RotateX"), Text("-2.5")}, {preset::NamePattern, Text("{n}")}}};
}

TEST(AdjustmentSet, GoesFromRecordToRecordWithoutGearCentreOrLens) {
    ImageRecord from = testing::FisheyeRecord();
    from.Projection = 1;
    from.OutputAOV = 90.25F;
    from.EffectRectilinear = 80.0F;
    from.RotateY = -7.1F;
    from.TranslateY = 3.0F;
    ImageRecord to;
    to.GearName = Text("other");
    to.OfsetX = 5.0F;
    to.InputAOV = 111.0F;
    ImageRecord expected = to;
    const auto copied = AdjustmentsFromText(AdjustmentsText(AdjustmentsOf(from)));
    ASSERT_TRUE(copied);
    EXPECT_EQ(copied->keys().size(), AdjustmentNames().size());
    EXPECT_TRUE(GiveAdjustments(*copied, to));
    expected.Projection = 1;
    expected.OutputAOV = 90.25F;
    expected.EffectVarnel = from.EffectVarnel;
    expected.EffectRectilinear = 80.0F;
    expected.RotateX = from.RotateX;
    expected.RotateY = -7.1F;
    expected.RotateZ = from.RotateZ;
    expected.TranslateX = from.TranslateX;
    expected.TranslateY = 3.0F;
    expected.SettingsApplied = true;
    EXPECT_EQ(to, expected);
}

TEST(AdjustmentSet, TakesNothingFromOtherTextsAndNoWildNumbers) {
    for (const char* text : {"", "a photo", "{}", R"({"VarnelAdjustments":{"GearName":"x"}})"}) {
        EXPECT_FALSE(AdjustmentsFromText(Text(text))) << text;
    }
    ImageRecord image;
    image.OutputAOV = 70.0F;
    const auto wild = AdjustmentsFromText(
        Text(R"({"VarnelAdjustments":{"OutputAOV":"1e9","RotateX":"4","OfsetX":"9"}})"));
    ASSERT_TRUE(wild);
    GiveAdjustments(*wild, image);
    EXPECT_EQ(image.OutputAOV, 70.0F);
    EXPECT_EQ(image.RotateX, 4.0F);
    EXPECT_EQ(image.OfsetX, 0.0F);
}

TEST(Presets, TheBuiltInOnesSetWhatTheyNameAndNothingElse) {
    const struct {
        const char* name;
        int projection;
        float aov, varnel, rectilinear, x;
    } rows[] = {{"real estate", 1, 90.0F, 55.0F, 55.0F, 0.0F},
                {"Group Photo", 1, 75.0F, 55.0F, 80.0F, 9.0F},
                {"whole circle", 0, 130.0F, 100.0F, 55.0F, 9.0F},
                {"Horizon strip", 3, 130.0F, 55.0F, 55.0F, 9.0F}};
    for (const auto& row : rows) {
        const Preset* const preset = FindPreset(BuiltInPresets(), Text(row.name));
        ASSERT_NE(preset, nullptr) << row.name;
        ImageRecord image;
        image.Projection = 2;
        image.OutputAOV = 130.0F;
        image.EffectVarnel = image.EffectRectilinear = 55.0F;
        image.RotateX = image.RotateY = 9.0F;
        GiveAdjustments(preset->settings, image);
        EXPECT_EQ(image.Projection, row.projection) << row.name;
        EXPECT_EQ(image.OutputAOV, row.aov) << row.name;
        EXPECT_EQ(image.EffectVarnel, row.varnel) << row.name;
        EXPECT_EQ(image.EffectRectilinear, row.rectilinear) << row.name;
        EXPECT_EQ(image.RotateX, row.x) << row.name;
        EXPECT_EQ(image.RotateY, 9.0F) << row.name;
    }
}

TEST(Presets, OwnOnesAreStoredAndFollowTheBuiltInOnes) {
    MemoryStore store;
    EXPECT_TRUE(OwnPresets(store).empty());
    const Presets own{Own("ä \"1\" = [x]"), Own("second")};
    SaveOwnPresets(store, own);
    EXPECT_EQ(OwnPresets(store), own);
    EXPECT_EQ(AllPresets(store).size(), BuiltInPresets().size() + 2);
    SaveOwnPresets(store, {own[1]});
    EXPECT_EQ(OwnPresets(store), Presets{own[1]});
}

TEST(Presets, NamesAreOnceAndPlain) {
    const Presets own{Own("mine")};
    for (const char* name : {"", " ", "Mine", "real ESTATE", " mine2"}) {
        EXPECT_FALSE(PresetNameError(Text(name), own).isEmpty()) << name;
    }
    EXPECT_FALSE(PresetNameError(QString(61, u'a'), own).isEmpty());
    EXPECT_TRUE(PresetNameError(Text("yours"), own).isEmpty());
}

TEST(Presets, FilesBringWhatIsUsableAndNoNameTwice) {
    Presets own{Own("mine")};
    const Presets sent{Own("mine"), {Text("mine"), {{Text("RotateX"), Text("1")}}}, Own("new")};
    const std::optional<Presets> read = PresetsFromBytes(PresetsToBytes(sent));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, sent);
    EXPECT_EQ(AddPresets(*read, own), 2);
    EXPECT_EQ(NamesOf(own), (QStringList{Text("mine"), Text("mine (2)"), Text("new")}));
    const auto odd = PresetsFromBytes(R"({"VarnelPresets":[1,{"name":"gear only","settings":
        {"GearName":"x","OutputAOV":"1e9"}},{"name":"good","settings":{"Projection":"Horizon"}}]})");
    ASSERT_TRUE(odd);
    EXPECT_EQ(NamesOf(*odd), QStringList{Text("good")});
    EXPECT_FALSE(PresetsFromBytes("no presets"));
    EXPECT_FALSE(PresetsFromBytes({}));
}

}  // namespace
}  // namespace varnel
