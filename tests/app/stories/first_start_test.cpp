// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window tells somebody who sees it for the first time, and the sample photo.

#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QMenuBar>
#include <QMimeData>

#include "gear/store/gear_list.h"
#include "tests/support/settled.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::WindowDesk;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(StartHint, StaysWhileThereIsAGearAndNoPhoto) {
    WindowDesk desk;
    const QWidget* const hint = desk.Find("StartHint");
    const auto shown = [hint] {
        testing::Settle();
        return hint->isVisible();
    };
    EXPECT_TRUE(shown());
    EXPECT_EQ(hint->size(), hint->parentWidget()->size());
    EXPECT_EQ(desk.Label("LabelDrop"), Q("Drop fisheye photos here"));
    desk.AddPhotos({Q("a.bmp")});
    EXPECT_FALSE(shown());
    desk.Click("CmdRemoveImages");
    EXPECT_TRUE(shown());
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_FALSE(shown());
}

TEST(StartHint, IsLitWhileFilesHoverOverTheWindow) {
    WindowDesk desk;
    ASSERT_TRUE(testing::Settle());
    const QImage before = desk.Shown("StartHint");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(Q("/a.jpg"))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QApplication::sendEvent(&desk.window, &enter);
    EXPECT_NE(desk.Shown("StartHint"), before);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&desk.window, &leave);
    EXPECT_EQ(desk.Shown("StartHint"), before);
}

TEST(Sample, IsDrawnOnFirstUseAndGetsItsGear) {
    WindowDesk desk;
    qputenv("HOME", desk.files.Path(Q("home")).toUtf8());
    GearTable& gears = desk.state.Gear;
    gears(0) = gears(1);
    gears(0).CameraModel = Q("EOS 6D");
    AddEditedGear(gears);
    gears.DefaultGearName = gears(2).GearName;
    desk.AddPhotos({Q("a.bmp")});
    QAction* const entry = desk.Entry("CmdOpenSample");
    EXPECT_EQ(desk.window.menuBar()->actions().constFirst()->menu()->actions().constLast(), entry);
    for (const int photos : {2, 3}) {
        entry->trigger();
        ASSERT_TRUE(QTest::qWaitFor([&] { return desk.state.Images.UpperBound() == photos; },
                                    photos == 2 ? 120000 : 1000));
        EXPECT_EQ(desk.Record(photos).FileName, Q("sample-circular.jpg"));
        EXPECT_EQ(desk.Record(photos).GearName, Q("Canon EOS 5D + Sigma EX 8 mm f:3.5"));
        EXPECT_EQ(desk.Find<QListWidget>("ImageList1")->currentRow(), photos - 1);
    }
    EXPECT_EQ(gears.UpperBound(), 2);
    gears(1) = gears(2);  // no gear that took it: it is offered
    desk.ClickLine(2);
    EXPECT_EQ(desk.Label("LabelTakenWith"), Q("Taken with Canon EOS 5D, Sigma EX 8 mm f:3.5"));
}

}  // namespace
}  // namespace varnel
