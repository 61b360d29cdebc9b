// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse on a picture of the window.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include "app/picture/picture_box.h"

namespace varnel::testing {

// With the left button held, in steps, between points of the picture.
inline void DragOnPicture(PictureBox* box, QPointF from, QPointF to) {
    constexpr int steps = 10;
    const auto at = [&](int step) {
        return box->ToWidget().map(from + (to - from) * step / steps).toPoint();
    };
    QTest::mousePress(box, Qt::LeftButton, {}, at(0));
    for (int step = 1; step <= steps; ++step) {
        QMouseEvent move(QEvent::MouseMove, at(step), box->mapToGlobal(at(step)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &move);
    }
    QTest::mouseRelease(box, Qt::LeftButton, {}, at(steps));
}

}  // namespace varnel::testing
