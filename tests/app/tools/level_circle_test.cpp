// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is traced and dragged on the photo as shot: the horizon and the image circle.

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/bitmaps.h"
#include "tests/support/picture_drag.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// With the mouse, between points of the picture.
void Drag(TestWindow& workspace, QPointF from, QPointF to) {
    testing::DragOnPicture(workspace.Find<PictureBox>("PicSmallFrom"), from, to);
}

void Key(TestWindow& workspace, Qt::Key key) {
    QTest::keyClick(workspace.window.focusWidget(), key);
}

TEST(LevelTools, TheHorizonCanBeTracedByKeyboard) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {400, 300});
    workspace.Click("OptionRemap_1");
    workspace.Entry("CmdViewActual")->trigger();
    workspace.window.activateWindow();
    workspace.Entry("CmdToolsLevel")->trigger();
    workspace.Shown("PicSmallFrom");
    const auto press = [&](Qt::Key key, int times, Qt::KeyboardModifiers modifiers = {}) {
        for (int n = 0; n < times; ++n) {
            QTest::keyClick(workspace.Find("PicSmallFrom"), key, modifiers);
        }
    };
    press(Qt::Key_Left, 2, Qt::ControlModifier);  // from the middle to (100, 150)
    press(Qt::Key_Down, 3);
    press(Qt::Key_Down, 3, Qt::ShiftModifier);
    press(Qt::Key_Return, 1);  // at (100, 168)
    press(Qt::Key_Right, 1, Qt::ControlModifier);
    press(Qt::Key_Return, 1);
    press(Qt::Key_Backspace, 1);  // not there
    press(Qt::Key_Right, 3, Qt::ControlModifier);
    press(Qt::Key_Up, 7);
    press(Qt::Key_Up, 1, Qt::ShiftModifier);
    press(Qt::Key_Return, 2);  // at (300, 132)
    EXPECT_EQ(workspace.Record(1).RotateZ, 10.0F);
    EXPECT_FALSE(workspace.Entry("CmdToolsLevel")->isChecked());
}

TEST(LevelTools, AStrokeAlongTheHorizonTurnsTheCamera) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {400, 300});
    workspace.Entry("CmdToolsLevel")->trigger();
    EXPECT_FALSE(workspace.Entry("CmdToolsLevel")->isChecked());
    EXPECT_TRUE(workspace.Label("StatusText").contains(Q("Varnel")));
    workspace.Click("OptionRemap_1");
    workspace.Entry("CmdToolsLevel")->trigger();
    // Through the middle, upward to the right by 10 degrees.
    Drag(workspace, {100.5, 166.6}, {300.5, 131.4});
    EXPECT_EQ(workspace.Slider("SliderZ")->value(), 10);
    EXPECT_EQ(workspace.Slider("SliderX")->value(), 0);
    EXPECT_EQ(workspace.Record(1).RotateZ, 10.0F);
    EXPECT_EQ(workspace.Label("StatusText"), Q("Levelled: 10° c.clockwise."));
    EXPECT_FALSE(workspace.Entry("CmdToolsLevel")->isChecked());  // done
    // By 60 degrees, beyond the slider.
    workspace.Entry("CmdToolsLevel")->trigger();
    Drag(workspace, {150.5, 235.6}, {250.5, 62.4});
    EXPECT_EQ(workspace.Record(1).RotateZ, 10.0F);
    EXPECT_EQ(workspace.Label("StatusText"),
              Q("Not levelled: it takes 60° c.clockwise, 20° more than the slider has."));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).RotateZ, 0.0F);
}

TEST(CircleTools, WhatIsFoundAndDraggedActsAtOnceAndIsKeptForTheGear) {
    TestWindow workspace;
    const QString path = workspace.files.Path(Q("disc.bmp"));
    const BitmapHandle disc = testing::Painted({600, 400}, [](int x, int y) {
        const BYTE grey = std::hypot(x - 305.5, y - 213.5) < 150.0 ? 200 : 3;
        return PixelColor{grey, grey, grey, 0};
    });
    ASSERT_TRUE(SaveBitmap(OutputType::Bmp, disc.get(), path));
    workspace.state.Gear.Resize(2);
    workspace.state.Gear(2).GearName = Q("other");
    workspace.Entry("CmdSetupEquipment")->trigger();
    workspace.window.AddFiles({path});
    workspace.Entry("CmdViewCircle")->trigger();
    const GearRecord before = workspace.state.Gear(1);
    workspace.Click("CmdCircleFind");
    EXPECT_EQ(workspace.Label("LabelCircle"), Q("Centre 10.0 ‰ right, 35.0 ‰ up, diameter 50.0 %"));
    EXPECT_NEAR(static_cast<double>(workspace.Record(1).OfsetY), -35.0, 0.5);
    EXPECT_EQ(workspace.Record(1).SensorWidth, before.SensorWidth);
    EXPECT_TRUE(workspace.Record(1).SettingsApplied);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 130.0F);
    const ImageRecord found = workspace.Record(1);
    const QImage preview = workspace.Shown("PicSmallTo");
    Drag(workspace, {306.0, 186.0}, {306.0, 206.0});
    EXPECT_NE(workspace.Shown("PicSmallTo"), preview);
    const ImageRecord dragged = workspace.Record(1);
    Drag(workspace, {306.0, 206.0}, {316.0, 206.0});
    EXPECT_NE(workspace.Record(1), dragged);
    workspace.Entry("CmdEditUndo")->trigger();  // one step for each drag
    EXPECT_EQ(workspace.Record(1), dragged);
    workspace.Click("CmdCircleReset");
    EXPECT_EQ(workspace.Record(1).OfsetY, before.OfsetY);
    EXPECT_EQ(workspace.Record(1).Ratio, before.GearRatio);
    EXPECT_FALSE(workspace.Find<QPushButton>("CmdCircleReset")->isEnabled());
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1), dragged);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1), found);
    workspace.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(workspace.Record(1), dragged);
    EXPECT_EQ(workspace.state.Gear(1), before);
    workspace.Click("CmdCircleTake");
    Key(workspace, Qt::Key_Escape);
    EXPECT_TRUE(workspace.Find("CmdCircleTake")->isVisible());
    workspace.Click("CmdCircleTake");
    workspace.Press("GearCombo", Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_TRUE(workspace.Find("CmdCircleTake")->isVisible());  // it was not asked for this gear
    workspace.Entry("CmdEditUndo")->trigger();
    QApplication::processEvents();
    EXPECT_EQ(workspace.Record(1), dragged);
    workspace.Click("CmdCircleTake");
    EXPECT_EQ(workspace.state.Gear(1), before);
    Key(workspace, Qt::Key_Return);
    EXPECT_NEAR(static_cast<double>(workspace.state.Gear(1).OfsetX), 10.0, 2.5);
    // 15, but for the screen's coarser pixels.
    EXPECT_NEAR(static_cast<double>(workspace.state.Gear(1).OfsetY), 15.0, 3.0);
    EXPECT_EQ(workspace.Record(1).OfsetY, workspace.state.Gear(1).OfsetY);
    EXPECT_EQ(workspace.Record(1).Ratio, workspace.state.Gear(1).GearRatio);
    EXPECT_NE(workspace.store.Get(Q("Gear"), Q("GearOfsetY1"), {}), QString());
    EXPECT_FALSE(workspace.Find<QPushButton>("CmdCircleTake")->isEnabled());
    const GearRecord after = workspace.state.Gear(1);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.state.Gear(1), before);
    EXPECT_EQ(workspace.store.Get(Q("Gear"), Q("GearOfsetY1"), {}), Q("0"));
    workspace.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(workspace.state.Gear(1), after);
    workspace.state.Gear(1).hAOV = 99.0F;
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.state.Gear(1).OfsetY, after.OfsetY);
    EXPECT_NE(workspace.Record(1).OfsetY, after.OfsetY);
    EXPECT_TRUE(workspace.Label("StatusText").contains(Q("edited or deleted since")));
}

}  // namespace
}  // namespace varnel
