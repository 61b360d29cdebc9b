// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Using a dialog as a person does, and somebody who notes what it says.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWheelEvent>

#include "state/notices.h"

namespace varnel::testing {

class NotedNotices : public Notices {
  public:
    void Tell(const QString& text, const QString& detail) override {
        told.append(detail.isEmpty() ? text : text + u'|' + detail);
    }
    QStringList told;
};

// A control of the dialog by its name.
template <class Control>
Control& The(const QDialog& form, const char* name) {
    return *form.findChild<Control*>(QString::fromUtf8(name));
}

inline void Click(const QDialog& form, const char* button) {
    QTest::mouseClick(&The<QAbstractButton>(form, button), Qt::LeftButton);
}

// One notch of the wheel over the middle of the widget.
inline void Wheel(QWidget& widget) {
    const QPointF middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

}  // namespace varnel::testing
