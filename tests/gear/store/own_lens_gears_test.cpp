// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Gears with lenses of the user's own, and with numbers of their own, in the settings.

#include <gtest/gtest.h>

#include <QDateTime>
#include <QTemporaryDir>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/lens/lens_folder.h"
#include "gear/store/gear_entry.h"
#include "gear/store/gear_store.h"
#include "remap/projection/lens_spline.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class NoPrompt : public GearPrompt {
  public:
    void Explain(const QString& /*text*/) override { ADD_FAILURE() << "asked for a gear"; }
    bool DefineGear(GearTable& /*table*/) override { return false; }
};

GearTable Load(SettingsStore& store) {
    NoPrompt prompt;
    GearTable table;
    EXPECT_EQ(LoadGear(store, table, prompt), GearLoad::Loaded);
    return table;
}

// A file store, because lenses lie beside it.
TEST(GearStore, KeepsOwnLensesByNameAndNumbersOfItsOwn) {
    const QTemporaryDir folder;
    const auto store = OpenFileStore(folder.filePath(Text("V.conf")), QDateTime::currentDateTime());
    const LensFolder lenses = LensFolder::Beside(store->Path());
    SampledLens lens;
    lens.knots = SampledFrom([](double a) { return 8.0 * a; }, 1.6).knots;
    lens.name = Text("mine");
    ASSERT_TRUE(lenses.Add(lens).isEmpty());
    GearTable table;
    table.Resize(2);
    FillGearFromCatalogue({Text("Canon"), Text("EOS 5D"), {}, {}}, table(1));
    GiveLens(lenses.Find(Text("mine")), table(1));
    table(1).GearName = table.DefaultGearName = Text("with curve");
    const GearNames sigma{Text("Canon"), Text("EOS 5D"), Text("Sigma"), Text("EX 8 mm f:3.5")};
    FillGearFromCatalogue(sigma, table(2));
    const float catalogueAngle = table(2).hAOV;
    table(2).GearName = Text("own numbers");
    table(2).Own.SensorWidth = table(2).Own.SensorHeight = 24.0F;
    SetLensNumbers(15.5F, 0.52F, table(2));
    SaveGear(*store, table);

    GearTable loaded = Load(*store);
    EXPECT_TRUE(loaded(1).Lens == table(1).Lens);
    EXPECT_FLOAT_EQ(loaded(1).ImageCircleRadius, table(1).ImageCircleRadius);
    EXPECT_FALSE(loaded(1).SetByHand);
    EXPECT_TRUE(loaded(2).Own == table(2).Own && loaded(2).SetByHand);
    EXPECT_EQ(loaded(2).LensMapScale, 15.5F);
    EXPECT_EQ(loaded(2).SensorWidth, 24.0F);
    EXPECT_NE(loaded(2).hAOV, catalogueAngle);
    EXPECT_EQ(LackingLensText(loaded), QString());

    ASSERT_TRUE(lenses.Rename(Text("mine"), Text("yours")).isEmpty());
    RenameStoredLens(*store, Text("mine"), Text("yours"));
    loaded = Load(*store);
    EXPECT_EQ(loaded(1).LensModel, u"yours");
    EXPECT_TRUE(loaded(1).Lens);

    ASSERT_TRUE(lenses.Delete(Text("yours")).isEmpty());
    loaded = Load(*store);
    EXPECT_TRUE(LacksLens(loaded(1)));
    EXPECT_TRUE(LackingLensText(loaded).contains(u"\"yours\""));
    DropAdjustments(loaded(2));
    SaveGear(*store, loaded);
    loaded = Load(*store);
    EXPECT_EQ(loaded(1).LensModel, u"yours") << "it is not lost";
    EXPECT_TRUE(loaded(2).Own == OwnNumbers());
}

}  // namespace
}  // namespace varnel
