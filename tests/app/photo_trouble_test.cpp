// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that cannot be read, or not yet, on the window.

#include <gtest/gtest.h>

#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

TEST(MainWindow, AnUnreadablePhotoIsToldAndLeavesNoOldPictureBehind) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")});
    const QString broken = desk.files.Text(Text("broken.jpg"));
    desk.window.AddFiles({broken});
    desk.ClickLine(1);
    EXPECT_EQ(desk.notices.texts, QStringList{Text("Could not open image")});
    EXPECT_TRUE(desk.notices.details.value(0).contains(broken));
    EXPECT_FALSE(desk.state.bitmaps.FullSourceBitmap);
    EXPECT_EQ(desk.state.Images.UpperBound(), 2);
    desk.Click("CommandSaveFreeimage");
    EXPECT_EQ(desk.notices.texts.size(), 2);  // and nothing of the other photo is saved
}

TEST(MainWindow, NothingChangesTheListWhileAPhotoIsRead) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    const QString late = desk.files.Picture(Text("late.bmp"), FIF_BMP);
    int asked = 0;
    desk.reader.meanwhile = [&] {
        ++asked;
        desk.window.AddFiles({late});
        desk.ClickLine(2);
    };
    desk.Click("CommandAddToBatchQue");  // reads the sizes of the photos that were never shown
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(desk.state.Images.UpperBound(), 3);
    ASSERT_EQ(desk.state.BatchQueue.UpperBound(), 3);
    EXPECT_EQ(desk.state.BatchQueue(3).Width, 60);
    EXPECT_FALSE(desk.state.BatchQueue(3).GearName.isEmpty());
}

TEST(MainWindow, WhatIsWrongWithAPhotoStandsOnItUntilTheNextOne) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")}, {300, 200});
    auto* const trouble = desk.Find<QLabel>("LabelTrouble");
    EXPECT_TRUE(trouble->isHidden());
    desk.window.AddFiles({desk.files.Cut(Text("cut.bmp"), desk.files.Path(Text("a.bmp")), 60)});
    desk.ClickLine(1);
    EXPECT_EQ(trouble->text(), Text("cut.bmp: damaged: the file is cut short"));
    EXPECT_TRUE(desk.Find("PicSmallFrom")->geometry().contains(trouble->geometry()));
    EXPECT_TRUE(desk.notices.texts.isEmpty());
    desk.ClickLine(0);
    EXPECT_TRUE(trouble->isHidden());
}

}  // namespace
}  // namespace varnel
