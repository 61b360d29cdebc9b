// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window says and offers about the gear that took a photo.

#include <gtest/gtest.h>

#include "gear/store/gear_entry.h"
#include "gear/store/gear_list.h"
#include "tests/support/seeds/taken_photos.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TakenByNikon;
using testing::TestWindow;
using testing::Text;

const GearNames nikon{Text("Nikon"), Text("D7100"), Text("Nikon"), Text("AF 10.5mm f/2.8G ED DX")};

class GearOfferRowTest : public ::testing::Test {
  protected:
    GearOfferRowTest() {
        workspace_.window.AddFiles(
            {TakenByNikon(workspace_.files, Text("a.jpg"), "NIKON D7100", "10.5 mm f/2.8"),
             TakenByNikon(workspace_.files, Text("b.jpg"), "NIKON D7100", "10.5 mm f/2.8"),
             workspace_.files.Picture(Text("c.bmp"), OutputType::Bmp)});
        workspace_.dialogs.onDefine = [this](const GearRecord& known) {
            TakeKnown(known, workspace_.state.Gear(0));
            workspace_.state.Gear(0).GearName = Text("Cut & dried");
            AddEditedGear(workspace_.state.Gear);
            known_ = known;
            return true;
        };
    }
    QAbstractButton* Button() { return workspace_.Find<QAbstractButton>("CmdOfferedGear"); }

    TestWindow workspace_;
    GearRecord known_;
};

TEST_F(GearOfferRowTest, DefinesAndUsesTheGearOnlyWhenAsked) {
    EXPECT_EQ(workspace_.Label("LabelTakenWith"), Text("Taken with NIKON D7100, 10.5 mm f/2.8"));
    EXPECT_EQ(Button()->text(), Text("Define this gear..."));
    workspace_.Click("CmdOfferedGear");
    EXPECT_EQ(workspace_.dialogs.opened, QStringList{Text("FormGearEdit")});
    EXPECT_EQ(known_, GearNamed(nikon));
    EXPECT_EQ(workspace_.Find<QComboBox>("GearCombo")->count(), 2);
    EXPECT_EQ(workspace_.Record(1).GearName, Text("Cut & dried"));
    // Other photos that are selected stay as they are.
    workspace_.ClickLine(1, Qt::ControlModifier);
    EXPECT_EQ(Button()->text(), Text("Use Cut && dried"));
    const ImageRecord other = workspace_.Record(1);
    workspace_.Click("CmdOfferedGear");
    EXPECT_EQ(workspace_.Record(2).GearName, Text("Cut & dried"));
    EXPECT_EQ(workspace_.Record(2).LensModel, nikon.lensModel);
    EXPECT_EQ(workspace_.Record(1), other);
    EXPECT_EQ(workspace_.Find<QComboBox>("GearCombo")->currentText(), Text("Cut & dried"));
    EXPECT_FALSE(Button()->isVisible());
    EXPECT_FALSE(workspace_.Label("LabelTakenWith").isEmpty());
}

// As of a picture that was dropped on the list: what was done to it stays.
TEST_F(GearOfferRowTest, DefinesTheGearThatAPhotoHasAndTheTableNot) {
    workspace_.ClickLine(2);
    workspace_.Slider("SliderAOVinput")->setValue(150);
    workspace_.Record(3).GearName = Text("lost");
    workspace_.Record(3).OfsetX = 7.0F;
    workspace_.state.settings.OfferGear = false;  // tells of what photos tell
    workspace_.ClickLine(0);
    EXPECT_FALSE(Button()->isVisible());
    workspace_.ClickLine(2);
    EXPECT_EQ(Button()->text(), Text("Define this gear..."));
    ImageRecord wanted = workspace_.Record(3);
    workspace_.Click("CmdOfferedGear");
    EXPECT_EQ(known_.GearName, Text("lost"));
    EXPECT_EQ(known_.OfsetX, 7.0F);
    EXPECT_EQ(known_.hAOV, 150.0F);
    wanted.GearName = Text("Cut & dried");  // the editor's last word
    EXPECT_EQ(workspace_.Record(3), wanted);
    EXPECT_EQ(workspace_.Find<QComboBox>("GearCombo")->currentText(), wanted.GearName);
    EXPECT_FALSE(Button()->isVisible());
}

TEST_F(GearOfferRowTest, IsSilentAboutOtherPhotosAndWhenSwitchedOff) {
    workspace_.ClickLine(2);
    EXPECT_EQ(workspace_.Label("LabelTakenWith"), QString());
    EXPECT_FALSE(Button()->isVisible());
    workspace_.ClickLine(0);
    EXPECT_TRUE(Button()->isVisible());
    workspace_.dialogs.onDefaults = [this] { workspace_.state.settings.OfferGear = false; };
    workspace_.Entry("CmdSetupSetup")->trigger();
    EXPECT_EQ(workspace_.Label("LabelTakenWith"), QString());
    EXPECT_FALSE(Button()->isVisible());
}

}  // namespace
}  // namespace varnel
