// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which gear the photos of the list have: what gives them one, and what must not.

#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

// Two gears and three photos, of which the first one is shown.
class GearChoice : public ::testing::Test {
  protected:
    GearChoice() {
        desk_.AddGear(Text("other"), 100.0F);
        desk_.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    }
    QComboBox& Combo() { return *desk_.Find<QComboBox>("GearCombo"); }
    void Choose(int gear) {
        Combo().setCurrentIndex(gear - 1);
        Q_EMIT Combo().activated(gear - 1);
    }
    // The photos' gears by their numbers, 0 for one that is not in the table.
    std::string Gears(const RecordArray<ImageRecord>& images) {
        std::string gears;
        for (const ImageRecord& image : images) {
            const int gear = desk_.state.Gear.Find(image.GearName);
            gears += image.GearName.isEmpty() ? "-" : std::to_string(gear);
            gears += gear > 0 && image.InputAOV != desk_.state.Gear(gear).hAOV ? "?" : "";
        }
        return gears;
    }
    std::string Gears() { return Gears(desk_.state.Images); }

    WindowDesk desk_;
};

TEST_F(GearChoice, OnlyADeedChangesAPhotosGear) {
    EXPECT_EQ(Gears(), "1--");
    Choose(2);
    desk_.ClickLine(1);
    EXPECT_EQ(Gears(), "21-");
    EXPECT_EQ(Combo().currentIndex(), 0);
    Choose(2);
    desk_.ClickLine(0);
    EXPECT_EQ(Combo().currentIndex(), 1);
    Choose(1);
    desk_.Press("ImageList1", Qt::Key_Down);
    desk_.Press("ImageList1", Qt::Key_Up);
    desk_.Click("CommandAddToBatchQue");
    EXPECT_EQ(Gears(), "121");
    EXPECT_EQ(Gears(desk_.state.BatchQueue), "121");
    desk_.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Gears(), "221");
}

TEST_F(GearChoice, AGearForAllHoldsUntilAPhotoGetsAnother) {
    Choose(2);
    desk_.Click("CmdApplyAll");
    Choose(1);
    desk_.Click("CommandAddToBatchQue");
    EXPECT_EQ(Gears(desk_.state.BatchQueue), "122");
    EXPECT_EQ(Gears(), "122");
}

// Its numbers are there before anything is made of the photo.
TEST_F(GearChoice, AGearForAllComesBeforeTheMorphAndTheContactSheet) {
    for (const char* const entry : {"CmdToolsMorph", "CmdContactSheet", "CmdViewCircle"}) {
        const int gear = Combo().currentIndex() == 0 ? 2 : 1;
        Combo().setCurrentIndex(gear - 1);
        desk_.Click("CmdApplyAll");
        EXPECT_NE(desk_.Record(1).InputAOV, desk_.state.Gear(gear).hAOV);
        desk_.Entry(entry)->trigger();
        EXPECT_EQ(desk_.Record(1).InputAOV, desk_.state.Gear(gear).hAOV) << entry;
    }
}

TEST_F(GearChoice, AGearThatIsGoneLeavesItsNumbers) {
    const float before = desk_.Record(1).InputAOV;
    desk_.Record(1).GearName = desk_.Record(2).GearName = Text("gone");
    desk_.state.Gear.DefaultGearName = Text("gone, too");
    desk_.ClickLine(1);  // was never given its numbers: the first gear, as there is no default
    desk_.ClickLine(0);
    EXPECT_EQ(Gears(), "01-");
    EXPECT_EQ(desk_.Record(1).InputAOV, before);
    // The selector names it, but neither offers it nor gives it to others.
    EXPECT_EQ(Combo().currentIndex(), -1);
    EXPECT_EQ(Combo().placeholderText(), Text("gone (not in the list)"));
    EXPECT_EQ(Combo().count(), 2);
    EXPECT_FALSE(desk_.Find("CmdApplyAll")->isEnabled());
    desk_.ClickLine(1);
    EXPECT_TRUE(desk_.Find("CmdApplyAll")->isEnabled());
}

}  // namespace
}  // namespace varnel
