// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is traced and dragged on the photo as shot: the horizon and the image circle.

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/bitmaps.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::WindowDesk;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// With the mouse, between points of the picture.
void Drag(WindowDesk& desk, QPointF from, QPointF to) {
    auto* const box = desk.Find<PictureBox>("PicSmallFrom");
    const auto at = [&](QPointF point) { return box->ToWidget().map(point).toPoint(); };
    QTest::mousePress(box, Qt::LeftButton, {}, at(from));
    for (int part = 1; part <= 10; ++part) {
        QMouseEvent move(QEvent::MouseMove, at(from + (to - from) * part / 10.0),
                         box->mapToGlobal(at(from + (to - from) * part / 10.0)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &move);
    }
    QTest::mouseRelease(box, Qt::LeftButton, {}, at(to));
}

void Key(WindowDesk& desk, Qt::Key key) {
    QTest::keyClick(desk.window.focusWidget(), key);
}

TEST(LevelTools, AStrokeAlongTheHorizonTurnsTheCamera) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")}, {400, 300});
    desk.Entry("CmdToolsLevel")->trigger();
    EXPECT_FALSE(desk.Entry("CmdToolsLevel")->isChecked());
    EXPECT_TRUE(desk.Label("StatusText").contains(Q("Rectilinear")));
    desk.Click("OptionRemap_1");
    desk.Entry("CmdToolsLevel")->trigger();
    // Through the middle, upward to the right by 10 degrees.
    Drag(desk, {100.5, 166.6}, {300.5, 131.4});
    EXPECT_EQ(desk.Slider("SliderZ")->value(), 10);
    EXPECT_EQ(desk.Slider("SliderX")->value(), 0);
    EXPECT_EQ(desk.Record(1).RotateZ, 10.0F);
    EXPECT_EQ(desk.Label("StatusText"), Q("Levelled: 10° c.clockwise."));
    EXPECT_FALSE(desk.Entry("CmdToolsLevel")->isChecked());  // done
    // By 60 degrees, beyond the slider.
    desk.Entry("CmdToolsLevel")->trigger();
    Drag(desk, {150.5, 235.6}, {250.5, 62.4});
    EXPECT_EQ(desk.Record(1).RotateZ, 10.0F);
    EXPECT_EQ(desk.Label("StatusText"),
              Q("Not levelled: it takes 60° c.clockwise, 20° more than the slider has."));
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.Record(1).RotateZ, 0.0F);
}

TEST(CircleTools, WhatIsFoundAndDraggedGoesIntoTheGear) {
    WindowDesk desk;
    const QString path = desk.files.Path(Q("disc.bmp"));
    const BitmapHandle disc = testing::Painted({600, 400}, [](int x, int y) {
        const BYTE grey = std::hypot(x - 305.5, y - 213.5) < 150.0 ? 200 : 3;
        return RGBQUAD{grey, grey, grey, 0};
    });
    ASSERT_TRUE(FreeImage_Save(FIF_BMP, disc.get(), path.toUtf8().constData()));
    desk.state.Gear.Resize(2);
    desk.state.Gear(2).GearName = Q("other");
    desk.Entry("CmdSetupEquipment")->trigger();
    desk.window.AddFiles({path});
    desk.Entry("CmdViewCircle")->trigger();
    const GearRecord before = desk.state.Gear(1);
    desk.Click("CmdCircleFind");
    EXPECT_EQ(desk.Label("LabelCircle"), Q("Centre 10.0 ‰ right, 35.0 ‰ up, diameter 50.0 %"));
    EXPECT_EQ(desk.state.Gear(1), before);
    Drag(desk, {306.0, 186.0}, {306.0, 206.0});
    desk.Click("CmdCircleTake");
    Key(desk, Qt::Key_Escape);
    EXPECT_TRUE(desk.Find("CmdCircleTake")->isVisible());
    desk.Click("CmdCircleTake");
    desk.Press("GearCombo", Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_TRUE(desk.Find("CmdCircleTake")->isVisible());  // it was not asked for this gear
    desk.Press("GearCombo", Qt::Key_Up);
    QApplication::processEvents();
    desk.Click("CmdCircleTake");
    EXPECT_EQ(desk.state.Gear(1), before);
    Key(desk, Qt::Key_Return);
    EXPECT_NEAR(static_cast<double>(desk.state.Gear(1).OfsetX), 10.0, 2.5);
    // 15, but for the screen's coarser pixels.
    EXPECT_NEAR(static_cast<double>(desk.state.Gear(1).OfsetY), 15.0, 3.0);
    EXPECT_EQ(desk.Record(1).OfsetY, desk.state.Gear(1).OfsetY);
    EXPECT_EQ(desk.Record(1).Ratio, desk.state.Gear(1).GearRatio);
    EXPECT_NE(desk.store.Get(Q("Gear"), Q("GearOfsetY1"), {}), QString());
    EXPECT_FALSE(desk.Find<QPushButton>("CmdCircleTake")->isEnabled());
    const GearRecord after = desk.state.Gear(1);
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.state.Gear(1), before);
    EXPECT_EQ(desk.store.Get(Q("Gear"), Q("GearOfsetY1"), {}), Q("0"));
    desk.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(desk.state.Gear(1), after);
    desk.state.Gear(1).hAOV = 99.0F;
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.state.Gear(1).OfsetY, after.OfsetY);
    EXPECT_NE(desk.Record(1).OfsetY, after.OfsetY);
    EXPECT_TRUE(desk.Label("StatusText").contains(Q("edited or deleted since")));
}

}  // namespace
}  // namespace varnel
