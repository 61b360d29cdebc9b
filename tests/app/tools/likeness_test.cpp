// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Dropping a picture that Varnel made brings its photo and its settings back.

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QComboBox>
#include <QFile>

#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

// Adjusts the desk's first photo, saves it and takes it off the list.
QString SavedAndRemoved(WindowDesk& desk) {
    desk.AddPhotos({Text("a.bmp")});
    desk.Click("OptionRemap_1");
    desk.Slider("SliderY")->setValue(-20);
    desk.Slider("SliderEffect")->setValue(60);
    desk.chooser.agrees = true;
    desk.chooser.answer = SaveChoice{desk.files.Path(Text("r")), 2};
    desk.Click("CommandSaveFreeimage");
    desk.Click("CmdRemoveImages");
    EXPECT_TRUE(desk.state.Images.Empty());
    desk.Click("OptionRemap_0");
    return desk.files.Path(Text("r.JPG"));
}

TEST(DroppedLikeness, BringsPhotoGearAndSettingsBackAndSelectsThem) {
    WindowDesk desk;
    const QString result = SavedAndRemoved(desk);
    const QString gear = desk.state.Gear(1).GearName;
    for (const bool gearIsThere : {true, false}) {
        if (!gearIsThere) {
            desk.state.Gear(1).GearName = Text("another");
            desk.state.Gear(1).GearRatio = 77.0F;
            desk.Find<QComboBox>("GearCombo")->setItemText(0, Text("another"));
        }
        desk.window.AddFiles({desk.files.Picture(Text("b.bmp"), FIF_BMP), result});
        auto* const list = desk.Find<QListWidget>("ImageList1");
        EXPECT_EQ(list->currentRow(), 1);
        EXPECT_EQ(list->selectedItems().value(0)->text(), Text("a.bmp"));
        EXPECT_EQ(desk.window.windowTitle(), Text("a.bmp - Varnel"));
        EXPECT_EQ(desk.Find<QButtonGroup>("OptionRemap")->checkedId(), 1);
        EXPECT_EQ(desk.Slider("SliderY")->value(), -20);
        EXPECT_EQ(desk.Slider("SliderEffect")->value(), 60);
        EXPECT_EQ(desk.Record(2).Width, 60);
        EXPECT_EQ(desk.Record(2).GearName, gear);
        // Nor does working on it give it the gear that the selector shows.
        desk.Slider("SliderX")->setValue(10);
        desk.Click("CommandAddToBatchQue");
        EXPECT_EQ(desk.Record(2).RotateX, 10.0F);
        EXPECT_EQ(desk.Record(2).GearName, gear);
        EXPECT_NE(desk.Record(2).Ratio, 77.0F);
        list->selectAll();
        desk.Click("CmdRemoveImages");
    }
    EXPECT_TRUE(desk.notices.texts.isEmpty());
}

TEST(DroppedLikeness, NamesThePhotoThatIsGoneAndAddsThePicture) {
    WindowDesk desk;
    const QString result = SavedAndRemoved(desk);
    QFile::remove(desk.files.Path(Text("a.bmp")));
    desk.window.AddFiles({result});
    EXPECT_EQ(desk.notices.texts,
              QStringList{Text("Could not find the photo that a picture was made of")});
    EXPECT_EQ(desk.notices.details, QStringList{Text("r.JPG: ") + desk.files.Path(Text("a.bmp"))});
    EXPECT_EQ(desk.Record(1).FileName, Text("r.JPG"));
    EXPECT_EQ(desk.Record(1).RotateY, 0.0F);
    desk.state.settings.WriteSettings = false;  // so nothing is missing
    desk.Click("CmdRemoveImages");
    desk.window.AddFiles({SavedAndRemoved(desk)});
    EXPECT_EQ(desk.Record(1).FileName, Text("r.JPG"));
    EXPECT_EQ(desk.notices.texts.size(), 1);
}

}  // namespace
}  // namespace varnel
