// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the main window looks where it is hard: small and huge screens, a dark desktop, many photos,
// an error. Pictures are kept where VARNEL_SCREENSHOTS says; what can be checked without eyes is.

#include <gtest/gtest.h>

#include <QScrollArea>
#include <QStyleFactory>

#include "tests/support/screenshots.h"
#include "tests/support/settled.h"
#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::KeepPicture;
using testing::SampleFolder;
using testing::Settle;
using testing::Text;
using testing::WindowDesk;

QString Sample(const char* name) {
    return SampleFolder() + u'/' + Text(name);
}

QPalette DarkDesktop() {
    QPalette palette(QColor(48, 48, 48));
    palette.setColor(QPalette::Base, QColor(34, 34, 34));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

// Everything of the side column can be reached: nothing is wider than the column.
void ExpectNothingCutOff(WindowDesk& desk) {
    const auto* const scroll = desk.window.findChild<QScrollArea*>();
    EXPECT_LE(scroll->widget()->minimumSizeHint().width(), scroll->viewport()->width());
    EXPECT_TRUE(desk.window.rect().contains(
        desk.Find("CommandSaveFreeimage")->mapTo(&desk.window, QPoint(5, 5))));
}

void Show(WindowDesk& desk, QSize size, const QStringList& files) {
    desk.window.resize(size);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&desk.window));
    desk.window.AddFiles(files);
    if (!files.isEmpty()) {
        desk.Click("OptionRemap_1");
    }
    EXPECT_TRUE(Settle());  // the pictures follow the room
    ExpectNothingCutOff(desk);
}

TEST(Looks, SmallAndHugeWindows) {
    for (const auto& [size, name] : {std::pair{QSize(1024, 700), "window-1024x700.png"},
                                     {QSize(3840, 2160), "window-3840x2160.png"},
                                     {QSize(1280, 900), "window.png"}}) {
        WindowDesk desk;
        if (size.width() > 3000) {
            desk.state.settings.PreviewWidth = desk.state.settings.PreviewHeight = 1000;
            desk.window.findChild<QAction*>(Text("CmdSetupSetup"))->trigger();
        }
        Show(desk, size, {Sample("sample-circular.jpg"), Sample("sample-fullframe.jpg")});
        KeepPicture(&desk.window, name);
        const QRect area = desk.Find("PicSmallFrom")->parentWidget()->rect();
        EXPECT_TRUE(area.contains(desk.Find("PicSmallFrom")->geometry()));
        EXPECT_TRUE(area.contains(desk.Find("PicSmallTo")->geometry()));
    }
}

TEST(Looks, DarkDesktop) {
    const QPalette before = QApplication::palette();
    QApplication::setStyle(QStyleFactory::create(Text("Fusion")));
    QApplication::setPalette(DarkDesktop());
    {
        WindowDesk desk;
        Show(desk, {1280, 900}, {Sample("sample-circular.jpg")});
        KeepPicture(&desk.window, "window-dark.png");
        const QImage shown = desk.Find("ImageList1")->grab().toImage();
        EXPECT_LT(shown.pixelColor(shown.width() / 2, shown.height() - 5).lightness(), 90);
    }
    QApplication::setPalette(before);
}

TEST(Looks, EmptyPortraitAndError) {
    WindowDesk desk;
    Show(desk, {1280, 900}, {});
    KeepPicture(&desk.window, "window-empty.png");
    Show(desk, {1280, 900},
         {Sample("sample-circular-upright.jpg"), desk.files.Text(Text("torn.jpg"))});
    KeepPicture(&desk.window, "window-portrait.png");
    desk.ClickLine(1);
    KeepPicture(&desk.window, "window-error.png");
    EXPECT_EQ(desk.notices.texts, QStringList{Text("Could not open image")});
}

TEST(Looks, FiftyPhotosTwentySelected) {
    WindowDesk desk;
    QStringList files;
    for (int n = 0; n < 50; ++n) {
        files.append(Sample(n % 2 == 0 ? "sample-circular.jpg" : "sample-fullframe.jpg"));
    }
    Show(desk, {1280, 900}, files);
    auto* const list = desk.Find<QListWidget>("ImageList1");
    for (int n = 0; n < 19; ++n) {
        QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
    }
    EXPECT_EQ(list->selectedItems().size(), 20);
    KeepPicture(&desk.window, "window-fifty.png");
}

TEST(Looks, TheToolsOverThePictures) {
    WindowDesk desk;
    desk.state.settings.PreviewWidth = 600;
    desk.state.settings.PreviewHeight = 450;
    Show(desk, {1500, 900}, {Sample("sample-circular.jpg"), Sample("sample-circular-upright.jpg")});
    const auto look = [&desk](std::initializer_list<const char*> entries, const char* name) {
        for (const char* const entry : entries) {
            desk.Entry(entry)->trigger();
        }
        EXPECT_TRUE(Settle());  // tiles and parts are drawn
        KeepPicture(&desk.window, name);
    };
    look({"CmdViewFrame", "CmdViewMagnification"}, "tools-frame.png");
    EXPECT_TRUE(desk.Label("LabelNumbers").contains(Text("Area kept")));
    look({"CmdViewFrame", "CmdViewMagnification", "CmdViewCircle"}, "tools-circle.png");
    look({"CmdViewCircle", "CmdContactSheet"}, "tools-sheet.png");
    EXPECT_TRUE(desk.Find("ContactSheet")->isVisible());
    look({"CmdContactSheet", "CmdViewActual", "CmdViewGrid"}, "tools-zoom.png");
}

}  // namespace
}  // namespace varnel
