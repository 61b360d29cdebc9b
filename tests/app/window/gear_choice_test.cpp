// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which gear the photos of the list have: what gives them one, and what must not.

#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

// Two gears and three photos, of which the first one is shown.
class GearChoice : public ::testing::Test {
  protected:
    GearChoice() {
        workspace_.AddGear(Text("other"), 100.0F);
        workspace_.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    }
    QComboBox& Combo() { return *workspace_.Find<QComboBox>("GearCombo"); }
    void Choose(int gear) {
        Combo().setCurrentIndex(gear - 1);
        Q_EMIT Combo().activated(gear - 1);
    }
    // The photos' gears by their numbers, 0 for one that is not in the table.
    std::string Gears(const RecordArray<ImageRecord>& images) {
        std::string gears;
        for (const ImageRecord& image : images) {
            const int gear = workspace_.state.Gear.Find(image.GearName);
            gears += image.GearName.isEmpty() ? "-" : std::to_string(gear);
            gears += gear > 0 && image.InputAOV != workspace_.state.Gear(gear).hAOV ? "?" : "";
        }
        return gears;
    }
    std::string Gears() { return Gears(workspace_.state.Images); }

    TestWindow workspace_;
};

TEST_F(GearChoice, OnlyADeedChangesAPhotosGear) {
    EXPECT_EQ(Gears(), "1--");
    Choose(2);
    workspace_.ClickLine(1);
    EXPECT_EQ(Gears(), "21-");
    EXPECT_EQ(Combo().currentIndex(), 0);
    Choose(2);
    workspace_.ClickLine(0);
    EXPECT_EQ(Combo().currentIndex(), 1);
    Choose(1);
    workspace_.Press("ImageList1", Qt::Key_Down);
    workspace_.Press("ImageList1", Qt::Key_Up);
    workspace_.Click("CommandAddToBatchQue");
    EXPECT_EQ(Gears(), "121");
    EXPECT_EQ(Gears(workspace_.state.BatchQueue), "121");
    workspace_.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Gears(), "221");
}

TEST_F(GearChoice, AGearForAllHoldsUntilAPhotoGetsAnother) {
    Choose(2);
    workspace_.Click("CmdApplyAll");
    Choose(1);
    workspace_.Click("CommandAddToBatchQue");
    EXPECT_EQ(Gears(workspace_.state.BatchQueue), "122");
    EXPECT_EQ(Gears(), "122");
}

// Its numbers are there before anything is made of the photo.
TEST_F(GearChoice, AGearForAllComesBeforeTheMorphAndTheContactSheet) {
    for (const char* const entry : {"CmdToolsMorph", "CmdContactSheet", "CmdViewCircle"}) {
        const int gear = Combo().currentIndex() == 0 ? 2 : 1;
        Combo().setCurrentIndex(gear - 1);
        workspace_.Click("CmdApplyAll");
        EXPECT_NE(workspace_.Record(1).InputAOV, workspace_.state.Gear(gear).hAOV);
        workspace_.Entry(entry)->trigger();
        EXPECT_EQ(workspace_.Record(1).InputAOV, workspace_.state.Gear(gear).hAOV) << entry;
    }
}

TEST_F(GearChoice, AGearThatIsGoneLeavesItsNumbers) {
    const float before = workspace_.Record(1).InputAOV;
    workspace_.Record(1).GearName = workspace_.Record(2).GearName = Text("gone");
    workspace_.state.Gear.DefaultGearName = Text("gone, too");
    workspace_.ClickLine(1);  // was never given its numbers: the first gear, as there is no default
    workspace_.ClickLine(0);
    EXPECT_EQ(Gears(), "01-");
    EXPECT_EQ(workspace_.Record(1).InputAOV, before);
    // The selector names it, but neither offers it nor gives it to others.
    EXPECT_EQ(Combo().currentIndex(), -1);
    EXPECT_TRUE(Combo().placeholderText().endsWith(Text(" (not in the list)")));
    EXPECT_TRUE(Combo().toolTip().startsWith(Text("gone (not in the list)\n")));
    EXPECT_EQ(Combo().count(), 2);
    EXPECT_FALSE(workspace_.Find("CmdApplyAll")->isEnabled());
    workspace_.ClickLine(1);
    EXPECT_TRUE(workspace_.Find("CmdApplyAll")->isEnabled());
}

// Three photos of the first gear, which the list renames and gives another ratio and angle: not
// adjusted, adjusted but for the angle, with an angle of its own.
class RedefinedGear : public GearChoice {
  protected:
    RedefinedGear() {
        workspace_.ClickLine(1);
        workspace_.Slider("SliderEffect")->setValue(80);
        workspace_.ClickLine(2);
        workspace_.Slider("SliderAOVinput")->setValue(150);
        workspace_.ClickLine(0);
        workspace_.dialogs.onManage = [this] {
            const GearRecord before = workspace_.state.Gear(1);
            workspace_.state.Gear(1).GearName = workspace_.state.Gear.DefaultGearName = Text("new");
            workspace_.state.Gear(1).GearRatio = 99.0F;
            workspace_.state.Gear(1).hAOV = 140.0F;
            return std::vector<GearChange>{{before, workspace_.state.Gear(1)}};
        };
        workspace_.dialogs.opened.clear();
    }
    // Opens the list of gears; tells what was asked.
    QString Redefine() {
        workspace_.Entry("CmdSetupEquipment")->trigger();
        return workspace_.dialogs.opened.mid(1).join(u'|');
    }
    std::vector<ImageRecord> All() {
        return {workspace_.state.Images.begin(), workspace_.state.Images.end()};
    }
    void Browse() {
        for (const int line : {1, 2, 0}) {
            workspace_.ClickLine(line);
        }
    }
};

TEST_F(RedefinedGear, GivesItsPhotosTheNewNumbersInOneStep) {
    workspace_.Click("CommandAddToBatchQue");
    const std::vector<ImageRecord> before = All();
    EXPECT_EQ(Redefine(), before[0].GearName + Text(": 3"));
    const float angles[] = {140.0F, 140.0F, 150.0F};
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(workspace_.Record(n).GearName, Text("new"));
        EXPECT_EQ(workspace_.Record(n).Ratio, 99.0F);
        EXPECT_EQ(workspace_.Record(n).InputAOV, angles[n - 1]);
        EXPECT_EQ(workspace_.Record(n).EffectVarnel, n == 2 ? 80.0F : 100.0F);
        EXPECT_EQ(workspace_.Record(n).SettingsApplied, before[n - 1].SettingsApplied);
        EXPECT_EQ(workspace_.state.BatchQueue(n), before[n - 1]);
    }
    EXPECT_EQ(Combo().currentText(), Text("new"));
    EXPECT_EQ(workspace_.Slider("SliderAOVinput")->value(), 140);
    EXPECT_EQ(workspace_.Entry("CmdEditUndo")->text(), Text("&Undo new numbers of a gear"));
    workspace_.Entry("CmdEditUndo")->trigger();
    Browse();
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(workspace_.Record(n).GearName, before[n - 1].GearName);
        EXPECT_EQ(workspace_.Record(n).InputAOV, before[n - 1].InputAOV);
    }
}

TEST_F(RedefinedGear, LeavesItsPhotosAloneWhenTheUserSaysNo) {
    const QString undo = workspace_.Entry("CmdEditUndo")->text();
    const std::vector<ImageRecord> before = All();
    workspace_.dialogs.givesNewNumbers = false;
    EXPECT_NE(Redefine(), QString());
    Browse();
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(workspace_.Record(n).GearName, before[n - 1].GearName);
        EXPECT_EQ(workspace_.Record(n).Ratio, before[n - 1].Ratio);
        EXPECT_EQ(workspace_.Record(n).InputAOV, before[n - 1].InputAOV);
    }
    EXPECT_EQ(Combo().currentIndex(), -1);
    EXPECT_EQ(workspace_.Entry("CmdEditUndo")->text(), undo);
}

}  // namespace
}  // namespace varnel
