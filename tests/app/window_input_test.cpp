// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Mouse and keys where they could do harm.

#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

TEST(MainWindow, AWheelThatPassesOverASliderChangesNothing) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")});
    QSlider* const slider = desk.Slider("SliderAOVinput");
    desk.Find("ImageList1")->setFocus();
    const auto roll = [&] {
        QWheelEvent wheel({5, 5}, slider->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &wheel);
    };
    const int before = slider->value();
    roll();
    EXPECT_EQ(slider->value(), before);
    auto* const gears = desk.Find<QComboBox>("GearCombo");
    gears->addItem(Text("another"));
    QWheelEvent overGears({5, 5}, gears->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(gears, &overGears);
    EXPECT_EQ(gears->currentIndex(), 0);
    slider->setFocus();
    roll();
    EXPECT_NE(slider->value(), before);
}

}  // namespace
}  // namespace varnel
