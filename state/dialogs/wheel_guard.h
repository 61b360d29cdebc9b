// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps the wheel from moving a control that happens to lie under the pointer: it only moves what
// was chosen before. Throws nothing.
#pragma once

#include <QEvent>
#include <QWidget>

namespace varnel {

class WheelGuard : public QObject {
  public:
    // For as long as the control lives.
    explicit WheelGuard(QWidget* control) : QObject(control) { control->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace varnel
