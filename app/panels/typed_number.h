// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is still being typed into a number's field of a window counts. Throws nothing.
#pragma once

#include <QAbstractSpinBox>

namespace varnel {

inline void TakeTyped(const QWidget& window) {
    if (auto* const number = qobject_cast<QAbstractSpinBox*>(window.focusWidget())) {
        number->interpretText();
    }
}

}  // namespace varnel
