// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that cannot be read, or not yet, on the window.

#include <gtest/gtest.h>

#include "app/panels/photo_list.h"
#include "pipeline/photos/add_images.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

TEST(MainWindow, AnUnreadablePhotoIsToldAndLeavesNoOldPictureBehind) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")});
    const QString broken = workspace.files.Text(Text("broken.jpg"));
    workspace.window.AddFiles({broken});
    workspace.ClickLine(1);
    EXPECT_EQ(workspace.notices.texts, QStringList{Text("Could not open image")});
    EXPECT_TRUE(workspace.notices.details.value(0).contains(broken));
    EXPECT_FALSE(workspace.state.bitmaps.FullSourceBitmap);
    EXPECT_EQ(workspace.state.Images.UpperBound(), 2);
    workspace.Click("CommandSaveFreeimage");
    EXPECT_EQ(workspace.notices.texts.size(), 2);  // and nothing of the other photo is saved
}

TEST(MainWindow, BadFilesOfADropOrADialogAreToldInOneBoxAndMarked) {
    TestWindow workspace;
    QDir(workspace.files.Path({})).mkpath(Text("day/evening"));
    workspace.files.Picture(Text("day/b.bmp"), OutputType::Bmp);
    const QStringList bad{workspace.files.Text(Text("day/a.jpg")),
                          workspace.files.Empty(Text("day/evening/c.TIFF"))};
    const auto expectTold = [&](int first) {
        EXPECT_EQ(workspace.notices.texts,
                  QStringList(Text("2 of the added images could not be opened")));
        for (const QString& path : bad) {
            EXPECT_TRUE(workspace.notices.details.value(0).contains(path)) << qPrintable(path);
        }
        QApplication::processEvents();
        const auto* const list = workspace.Find<QListWidget>("ImageList1");
        ASSERT_EQ(list->count(), first + 3);
        for (int line = 0; line < 3; ++line) {
            workspace.ClickLine(first + line);
            EXPECT_EQ(list->item(first + line)->data(PhotoList::marksRole).toString(),
                      line == 1 ? Text("V") : Text("V!"));
        }
        EXPECT_EQ(workspace.notices.texts.size(), 1) << "no box for each of them";
        workspace.notices.texts.clear();
        workspace.notices.details.clear();
    };
    workspace.window.AddFiles({workspace.files.Path(Text("day"))});
    expectTold(0);
    workspace.dialogs.onAdd = [&] {
        AppendFiles(workspace.state.Images,
                    {bad[0], workspace.files.Path(Text("day/b.bmp")), bad[1]});
        return true;
    };
    workspace.Click("Command1");
    expectTold(3);
    QDir(workspace.files.Path({})).mkdir(Text("none"));
    workspace.window.AddFiles({workspace.files.Path(Text("none"))});
    EXPECT_EQ(workspace.notices.texts, QStringList(Text("There are no photos in a folder")));
}

TEST(MainWindow, NothingChangesTheListWhileAPhotoIsRead) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    const QString late = workspace.files.Picture(Text("late.bmp"), OutputType::Bmp);
    int asked = 0;
    workspace.reader.meanwhile = [&] {
        ++asked;
        workspace.window.AddFiles({late});
        workspace.ClickLine(2);
    };
    workspace.Click("CommandAddToBatchQue");  // reads the sizes of the photos that were never shown
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(workspace.state.Images.UpperBound(), 3);
    ASSERT_EQ(workspace.state.BatchQueue.UpperBound(), 3);
    EXPECT_EQ(workspace.state.BatchQueue(3).Width, 60);
    EXPECT_FALSE(workspace.state.BatchQueue(3).GearName.isEmpty());
}

TEST(MainWindow, WhatIsWrongWithAPhotoStandsOnItUntilTheNextOne) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")}, {300, 200});
    auto* const error = workspace.Find<QLabel>("LabelError");
    EXPECT_TRUE(error->isHidden());
    workspace.window.AddFiles(
        {workspace.files.Cut(Text("cut.bmp"), workspace.files.Path(Text("a.bmp")), 60)});
    workspace.ClickLine(1);
    EXPECT_EQ(error->text(), Text("cut.bmp: damaged: the file is cut short"));
    EXPECT_TRUE(workspace.Find("PicSmallFrom")->geometry().contains(error->geometry()));
    EXPECT_TRUE(workspace.notices.texts.isEmpty());
    workspace.ClickLine(0);
    EXPECT_TRUE(error->isHidden());
}

}  // namespace
}  // namespace varnel
