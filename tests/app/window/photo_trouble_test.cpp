// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that cannot be read, or not yet, on the window.

#include <gtest/gtest.h>

#include "app/panels/photo_list.h"
#include "pipeline/photos/add_images.h"
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

TEST(MainWindow, BadFilesOfADropOrADialogAreToldInOneBoxAndMarked) {
    WindowDesk desk;
    QDir(desk.files.Path({})).mkpath(Text("day/evening"));
    desk.files.Picture(Text("day/b.bmp"), FIF_BMP);
    const QStringList bad{desk.files.Text(Text("day/a.jpg")),
                          desk.files.Empty(Text("day/evening/c.TIFF"))};
    const auto expectTold = [&](int first) {
        EXPECT_EQ(desk.notices.texts,
                  QStringList(Text("2 of the added images could not be opened")));
        for (const QString& path : bad) {
            EXPECT_TRUE(desk.notices.details.value(0).contains(path)) << qPrintable(path);
        }
        QApplication::processEvents();
        const auto* const list = desk.Find<QListWidget>("ImageList1");
        ASSERT_EQ(list->count(), first + 3);
        for (int line = 0; line < 3; ++line) {
            desk.ClickLine(first + line);
            EXPECT_EQ(list->item(first + line)->data(PhotoList::marksRole).toString(),
                      line == 1 ? Text("V") : Text("V!"));
        }
        EXPECT_EQ(desk.notices.texts.size(), 1) << "no box for each of them";
        desk.notices.texts.clear();
        desk.notices.details.clear();
    };
    desk.window.AddFiles({desk.files.Path(Text("day"))});
    expectTold(0);
    desk.dialogs.onAdd = [&] {
        AppendFiles(desk.state.Images, {bad[0], desk.files.Path(Text("day/b.bmp")), bad[1]});
        return true;
    };
    desk.Click("Command1");
    expectTold(3);
    QDir(desk.files.Path({})).mkdir(Text("none"));
    desk.window.AddFiles({desk.files.Path(Text("none"))});
    EXPECT_EQ(desk.notices.texts, QStringList(Text("There are no photos in a folder")));
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
