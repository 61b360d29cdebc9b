// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window says and offers about the gear that took a photo.

#include <gtest/gtest.h>

#include "gear/store/gear_entry.h"
#include "gear/store/gear_list.h"
#include "tests/support/seeds/taken_photos.h"
#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::TakenByNikon;
using testing::Text;
using testing::WindowDesk;

const GearNames nikon{Text("Nikon"), Text("D7100"), Text("Nikon"), Text("AF 10.5mm f/2.8G ED DX")};

class GearOfferRowTest : public ::testing::Test {
  protected:
    GearOfferRowTest() {
        desk_.window.AddFiles(
            {TakenByNikon(desk_.files, Text("a.jpg"), "NIKON D7100", "10.5 mm f/2.8"),
             TakenByNikon(desk_.files, Text("b.jpg"), "NIKON D7100", "10.5 mm f/2.8"),
             desk_.files.Picture(Text("c.bmp"), FIF_BMP)});
        desk_.dialogs.onDefine = [this](const GearRecord& known) {
            TakeKnown(known, desk_.state.Gear(0));
            desk_.state.Gear(0).GearName = Text("Cut & dried");
            AddEditedGear(desk_.state.Gear);
            known_ = known;
            return true;
        };
    }
    QAbstractButton* Button() { return desk_.Find<QAbstractButton>("CmdOfferedGear"); }

    WindowDesk desk_;
    GearRecord known_;
};

TEST_F(GearOfferRowTest, DefinesAndUsesTheGearOnlyWhenAsked) {
    EXPECT_EQ(desk_.Label("LabelTakenWith"), Text("Taken with NIKON D7100, 10.5 mm f/2.8"));
    EXPECT_EQ(Button()->text(), Text("Define this gear..."));
    desk_.Click("CmdOfferedGear");
    EXPECT_EQ(desk_.dialogs.opened, QStringList{Text("FormGearEdit")});
    EXPECT_EQ(known_, GearNamed(nikon));
    EXPECT_EQ(desk_.Find<QComboBox>("GearCombo")->count(), 2);
    EXPECT_EQ(desk_.Record(1).GearName, Text("Cut & dried"));
    // Other photos that are selected stay as they are.
    desk_.ClickLine(1, Qt::ControlModifier);
    EXPECT_EQ(Button()->text(), Text("Use Cut && dried"));
    const ImageRecord other = desk_.Record(1);
    desk_.Click("CmdOfferedGear");
    EXPECT_EQ(desk_.Record(2).GearName, Text("Cut & dried"));
    EXPECT_EQ(desk_.Record(2).LensModel, nikon.lensModel);
    EXPECT_EQ(desk_.Record(1), other);
    EXPECT_EQ(desk_.Find<QComboBox>("GearCombo")->currentText(), Text("Cut & dried"));
    EXPECT_FALSE(Button()->isVisible());
    EXPECT_FALSE(desk_.Label("LabelTakenWith").isEmpty());
}

// As of a picture that was dropped on the list: what was done to it stays.
TEST_F(GearOfferRowTest, DefinesTheGearThatAPhotoHasAndTheTableNot) {
    desk_.ClickLine(2);
    desk_.Slider("SliderAOVinput")->setValue(150);
    desk_.Record(3).GearName = Text("lost");
    desk_.Record(3).OfsetX = 7.0F;
    desk_.state.settings.OfferGear = false;  // tells of what photos tell
    desk_.ClickLine(0);
    EXPECT_FALSE(Button()->isVisible());
    desk_.ClickLine(2);
    EXPECT_EQ(Button()->text(), Text("Define this gear..."));
    ImageRecord wanted = desk_.Record(3);
    desk_.Click("CmdOfferedGear");
    EXPECT_EQ(known_.GearName, Text("lost"));
    EXPECT_EQ(known_.OfsetX, 7.0F);
    EXPECT_EQ(known_.hAOV, 150.0F);
    wanted.GearName = Text("Cut & dried");  // the editor's last word
    EXPECT_EQ(desk_.Record(3), wanted);
    EXPECT_EQ(desk_.Find<QComboBox>("GearCombo")->currentText(), wanted.GearName);
    EXPECT_FALSE(Button()->isVisible());
}

TEST_F(GearOfferRowTest, IsSilentAboutOtherPhotosAndWhenSwitchedOff) {
    desk_.ClickLine(2);
    EXPECT_EQ(desk_.Label("LabelTakenWith"), QString());
    EXPECT_FALSE(Button()->isVisible());
    desk_.ClickLine(0);
    EXPECT_TRUE(Button()->isVisible());
    desk_.dialogs.onDefaults = [this] { desk_.state.settings.OfferGear = false; };
    desk_.Entry("CmdSetupSetup")->trigger();
    EXPECT_EQ(desk_.Label("LabelTakenWith"), QString());
    EXPECT_FALSE(Button()->isVisible());
}

}  // namespace
}  // namespace varnel
