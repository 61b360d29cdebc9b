// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Every form of the program for those who use it by keyboard or have it read to them.

#include <gtest/gtest.h>

#include "app/start/focus_style.h"
#include "tests/app/access/every_form.h"
#include "tests/app/access/form_walk.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(Access, EveryFormTellsNamesLabelsOrderAndFocus) {
    QApplication::setStyle(new FocusStyle);
    QStringList faults;
    testing::ShowEveryForm([&faults](QWidget& form) { faults += testing::FaultsOf(form); });
    faults.removeDuplicates();
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
}

// The photo is shown a pixel to a point.
TEST(Access, TheToolsOverThePhoto) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {300, 200});
    workspace.Click("OptionRemap_1");
    workspace.window.activateWindow();
    QWidget* const photo = workspace.Find("PicSmallFrom");
    const auto press = [photo](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        EXPECT_TRUE(photo->hasFocus());
        QTest::keyClick(photo, key, modifiers);
    };
    workspace.Entry("CmdViewActual")->trigger();
    workspace.Entry("CmdViewCircle")->trigger();
    const QString before = workspace.Label("LabelCircle");
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    // 10 of 300 and 2 of 200 pixels, in thousandths
    EXPECT_TRUE(workspace.Label("LabelCircle").startsWith(Q("Centre 33.3 ‰ right, 10.0 ‰ up, ")))
        << workspace.Label("LabelCircle").toStdString();
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Plus);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(workspace.Label("LabelCircle"), before);
    press(Qt::Key_Escape);
    EXPECT_FALSE(workspace.Entry("CmdViewCircle")->isChecked());

    ASSERT_TRUE(workspace.Entry("CmdViewFrame")->isChecked());
    press(Qt::Key_Left);
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Minus);
    EXPECT_EQ(workspace.Record(1).RotateY, -1.0F);
    EXPECT_EQ(workspace.Record(1).RotateX, 10.0F);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 129.0F);
    press(Qt::Key_Escape);
    EXPECT_FALSE(workspace.Entry("CmdViewFrame")->isChecked());

    for (int n = 0; n < 4; ++n) {
        press(Qt::Key_Plus);
    }
    EXPECT_EQ(workspace.Label("ZoomText"), Q("400 %"));
    const QImage shown = workspace.Shown("PicSmallFrom");
    press(Qt::Key_Right);
    EXPECT_NE(workspace.Shown("PicSmallFrom"), shown);
    press(Qt::Key_Return);
    EXPECT_TRUE(workspace.Find<PictureBox>("PicSmallFrom")->IsWhole());
}

TEST(FocusStyle, HintsAndLinksAreReadOnADarkDesktop) {
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Link, Qt::blue);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    FocusStyle().polish(dark);
    EXPECT_EQ(dark.color(QPalette::PlaceholderText), QColor(255, 255, 255, 128));
    EXPECT_GT(dark.color(QPalette::Link).lightness(), 150);
}

}  // namespace
}  // namespace varnel
