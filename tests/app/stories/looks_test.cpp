// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the main window looks where it is hard: small and huge screens, a dark desktop, many photos,
// an error. Pictures are kept where VARNEL_SCREENSHOTS says; what can be checked without eyes is.

#include <gtest/gtest.h>

#include <QScrollArea>
#include <QStyleFactory>

#include "tests/support/screenshots.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::KeepPicture;
using testing::SampleFolder;
using testing::Settle;
using testing::TestWindow;
using testing::Text;

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
void ExpectNothingCutOff(TestWindow& workspace) {
    const auto* const scroll = workspace.window.findChild<QScrollArea*>();
    EXPECT_LE(scroll->widget()->minimumSizeHint().width(), scroll->viewport()->width());
    EXPECT_TRUE(workspace.window.rect().contains(
        workspace.Find("CommandSaveFreeimage")->mapTo(&workspace.window, QPoint(5, 5))));
}

void Show(TestWindow& workspace, QSize size, const QStringList& files) {
    workspace.window.resize(size);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&workspace.window));
    workspace.window.AddFiles(files);
    if (!files.isEmpty()) {
        workspace.Click("OptionRemap_1");
    }
    EXPECT_TRUE(Settle());  // the pictures follow the room
    ExpectNothingCutOff(workspace);
}

TEST(Looks, SmallAndHugeWindows) {
    for (const auto& [size, name] : {std::pair{QSize(1024, 700), "window-1024x700.png"},
                                     {QSize(3840, 2160), "window-3840x2160.png"},
                                     {QSize(1280, 900), "window.png"}}) {
        TestWindow workspace;
        if (size.width() > 3000) {
            workspace.state.settings.PreviewWidth = workspace.state.settings.PreviewHeight = 1000;
            workspace.window.findChild<QAction*>(Text("CmdSetupSetup"))->trigger();
        }
        Show(workspace, size, {Sample("sample-circular.jpg"), Sample("sample-fullframe.jpg")});
        KeepPicture(&workspace.window, name);
        const QRect area = workspace.Find("PicSmallFrom")->parentWidget()->rect();
        EXPECT_TRUE(area.contains(workspace.Find("PicSmallFrom")->geometry()));
        EXPECT_TRUE(area.contains(workspace.Find("PicSmallTo")->geometry()));
    }
}

TEST(Looks, DarkDesktop) {
    const QPalette before = QApplication::palette();
    QApplication::setStyle(QStyleFactory::create(Text("Fusion")));
    QApplication::setPalette(DarkDesktop());
    {
        TestWindow workspace;
        Show(workspace, {1280, 900}, {Sample("sample-circular.jpg")});
        KeepPicture(&workspace.window, "window-dark.png");
        const QImage shown = workspace.Find("ImageList1")->grab().toImage();
        EXPECT_LT(shown.pixelColor(shown.width() / 2, shown.height() - 5).lightness(), 90);
    }
    QApplication::setPalette(before);
}

TEST(Looks, EmptyPortraitAndError) {
    TestWindow workspace;
    Show(workspace, {1280, 900}, {});
    KeepPicture(&workspace.window, "window-empty.png");
    Show(workspace, {1280, 900},
         {Sample("sample-circular-upright.jpg"), workspace.files.Text(Text("torn.jpg"))});
    KeepPicture(&workspace.window, "window-portrait.png");
    workspace.ClickLine(1);
    KeepPicture(&workspace.window, "window-error.png");
    EXPECT_EQ(workspace.notices.texts,
              QStringList{QCoreApplication::translate("Workspace", "Could not open image")});
}

TEST(Looks, FiftyPhotosTwentySelected) {
    TestWindow workspace;
    QStringList files;
    for (int n = 0; n < 50; ++n) {
        files.append(Sample(n % 2 == 0 ? "sample-circular.jpg" : "sample-fullframe.jpg"));
    }
    Show(workspace, {1280, 900}, files);
    auto* const list = workspace.Find<QListWidget>("ImageList1");
    for (int n = 0; n < 19; ++n) {
        QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
    }
    EXPECT_EQ(list->selectedItems().size(), 20);
    KeepPicture(&workspace.window, "window-fifty.png");
}

TEST(Looks, TheToolsOverThePictures) {
    TestWindow workspace;
    workspace.state.settings.PreviewWidth = 600;
    workspace.state.settings.PreviewHeight = 450;
    Show(workspace, {1500, 900},
         {Sample("sample-circular.jpg"), Sample("sample-circular-upright.jpg")});
    const auto look = [&workspace](std::initializer_list<const char*> entries, const char* name) {
        for (const char* const entry : entries) {
            workspace.Entry(entry)->trigger();
        }
        EXPECT_TRUE(Settle());  // tiles and parts are drawn
        KeepPicture(&workspace.window, name);
    };
    look({"CmdViewMagnification"}, "tools-frame.png");
    EXPECT_TRUE(workspace.Label("LabelNumbers").contains(Text(" %   |   ")));
    look({"CmdViewFrame", "CmdViewMagnification", "CmdViewCircle"}, "tools-circle.png");
    look({"CmdViewCircle", "CmdContactSheet"}, "tools-sheet.png");
    EXPECT_TRUE(workspace.Find("ContactSheet")->isVisible());
    look({"CmdContactSheet", "CmdViewActual", "CmdViewGrid"}, "tools-zoom.png");
}

}  // namespace
}  // namespace varnel
