// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size of a window that is opened for the first time. Throws nothing.
#pragma once

#include <QScreen>
#include <QWidget>

namespace varnel {

// The wanted size as far as it fits on the window's screen, title and frame included.
inline QSize FirstSize(const QWidget& window, QSize wanted) {
    constexpr QSize titleAndFrame(16, 48);
    return wanted.boundedTo(window.screen()->availableSize() - titleAndFrame);
}

}  // namespace varnel
