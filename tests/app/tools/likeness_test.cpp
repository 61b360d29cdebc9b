// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Dropping a picture that Varnel made brings its photo and its settings back.

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QComboBox>
#include <QFile>

#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

// Adjusts the workspace's first photo, saves it and takes it off the list.
QString SavedAndRemoved(TestWindow& workspace) {
    workspace.AddPhotos({Text("a.bmp")});
    workspace.Click("OptionRemap_1");
    workspace.Slider("SliderY")->setValue(-20);
    workspace.Slider("SliderEffect")->setValue(60);
    workspace.chooser.agrees = true;
    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("r")), 2};
    workspace.Click("CommandSaveFreeimage");
    workspace.Click("CmdRemoveImages");
    EXPECT_TRUE(workspace.state.Images.Empty());
    workspace.Click("OptionRemap_0");
    return workspace.files.Path(Text("r.JPG"));
}

TEST(DroppedLikeness, BringsPhotoGearAndSettingsBackAndSelectsThem) {
    TestWindow workspace;
    const QString result = SavedAndRemoved(workspace);
    const QString gear = workspace.state.Gear(1).GearName;
    for (const bool gearIsThere : {true, false}) {
        if (!gearIsThere) {
            workspace.state.Gear(1).GearName = Text("another");
            workspace.state.Gear(1).GearRatio = 77.0F;
            workspace.Find<QComboBox>("GearCombo")->setItemText(0, Text("another"));
        }
        workspace.window.AddFiles(
            {workspace.files.Picture(Text("b.bmp"), OutputType::Bmp), result});
        auto* const list = workspace.Find<QListWidget>("ImageList1");
        EXPECT_EQ(list->currentRow(), 1);
        EXPECT_EQ(list->selectedItems().value(0)->text(), Text("a.bmp"));
        EXPECT_EQ(workspace.window.windowTitle(), Text("a.bmp - Varnel"));
        EXPECT_EQ(workspace.Find<QButtonGroup>("OptionRemap")->checkedId(), 1);
        EXPECT_EQ(workspace.Slider("SliderY")->value(), -20);
        EXPECT_EQ(workspace.Slider("SliderEffect")->value(), 60);
        EXPECT_EQ(workspace.Record(2).Width, 60);
        EXPECT_EQ(workspace.Record(2).GearName, gear);
        // Nor does working on it give it the gear that the selector shows.
        workspace.Slider("SliderX")->setValue(10);
        workspace.Click("CommandAddToBatchQue");
        EXPECT_EQ(workspace.Record(2).RotateX, 10.0F);
        EXPECT_EQ(workspace.Record(2).GearName, gear);
        EXPECT_NE(workspace.Record(2).Ratio, 77.0F);
        list->selectAll();
        workspace.Click("CmdRemoveImages");
    }
    EXPECT_TRUE(workspace.notices.texts.isEmpty());
}

TEST(DroppedLikeness, NamesThePhotoThatIsGoneAndAddsThePicture) {
    TestWindow workspace;
    const QString result = SavedAndRemoved(workspace);
    QFile::remove(workspace.files.Path(Text("a.bmp")));
    workspace.window.AddFiles({result});
    EXPECT_EQ(workspace.notices.texts,
              QStringList{Text("Could not find the photo that a picture was made of")});
    EXPECT_EQ(workspace.notices.details,
              QStringList{Text("r.JPG: ") + workspace.files.Path(Text("a.bmp"))});
    EXPECT_EQ(workspace.Record(1).FileName, Text("r.JPG"));
    EXPECT_EQ(workspace.Record(1).RotateY, 0.0F);
    workspace.state.settings.WriteSettings = false;  // so nothing is missing
    workspace.Click("CmdRemoveImages");
    workspace.window.AddFiles({SavedAndRemoved(workspace)});
    EXPECT_EQ(workspace.Record(1).FileName, Text("r.JPG"));
    EXPECT_EQ(workspace.notices.texts.size(), 1);
}

}  // namespace
}  // namespace varnel
