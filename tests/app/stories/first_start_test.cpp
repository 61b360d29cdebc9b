// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window tells somebody who sees it for the first time, and the sample photo.

#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QMenuBar>
#include <QMimeData>

#include "gear/store/gear_list.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(EmptyState, StaysWhileThereIsAGearAndNoPhoto) {
    TestWindow workspace;
    const QWidget* const hint = workspace.Find("EmptyState");
    const auto shown = [hint] {
        testing::Settle();
        return hint->isVisible();
    };
    EXPECT_TRUE(shown());
    EXPECT_EQ(hint->size(), hint->parentWidget()->size());
    EXPECT_EQ(workspace.Label("LabelDrop"), Q("Drop fisheye photos here"));
    workspace.AddPhotos({Q("a.bmp")});
    EXPECT_FALSE(shown());
    workspace.Click("CmdRemoveImages");
    EXPECT_TRUE(shown());
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_FALSE(shown());
}

TEST(EmptyState, IsLitWhileFilesHoverOverTheWindow) {
    TestWindow workspace;
    ASSERT_TRUE(testing::Settle());
    const QImage before = workspace.Shown("EmptyState");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(Q("/a.jpg"))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(&workspace.window, &enter);
    EXPECT_NE(workspace.Shown("EmptyState"), before);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&workspace.window, &leave);
    EXPECT_EQ(workspace.Shown("EmptyState"), before);
}

TEST(Sample, IsDrawnOnFirstUseAndGetsItsGear) {
    TestWindow workspace;
    qputenv("HOME", workspace.files.Path(Q("home")).toUtf8());
    GearTable& gears = workspace.state.Gear;
    gears(0) = gears(1);
    gears(0).CameraModel = Q("EOS 6D");
    AddEditedGear(gears);
    gears.DefaultGearName = gears(2).GearName;
    workspace.AddPhotos({Q("a.bmp")});
    QAction* const entry = workspace.Entry("CmdOpenSample");
    EXPECT_EQ(workspace.window.menuBar()->actions().constFirst()->menu()->actions().constLast(),
              entry);
    for (const int photos : {2, 3}) {
        entry->trigger();
        ASSERT_TRUE(QTest::qWaitFor([&] { return workspace.state.Images.UpperBound() == photos; },
                                    photos == 2 ? 120000 : 1000));
        EXPECT_EQ(workspace.Record(photos).FileName, Q("sample-circular.jpg"));
        EXPECT_EQ(workspace.Record(photos).GearName, Q("Canon EOS 5D + Sigma EX 8 mm f:3.5"));
        EXPECT_EQ(workspace.Find<QListWidget>("ImageList1")->currentRow(), photos - 1);
    }
    EXPECT_EQ(gears.UpperBound(), 2);
    gears(1) = gears(2);  // no gear that took it: it is offered
    workspace.ClickLine(2);
    EXPECT_EQ(workspace.Label("LabelTakenWith"), Q("Taken with Canon EOS 5D, Sigma EX 8 mm f:3.5"));
}

}  // namespace
}  // namespace varnel
