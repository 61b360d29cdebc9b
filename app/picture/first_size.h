// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size of a window that is opened for the first time.
#pragma once

#include <QScreen>
#include <QWidget>

namespace varnel {

// The wanted size as far as the window's screen has room for it, title and frame included.
inline QSize FirstSize(const QWidget& window, QSize wanted) {
    constexpr QSize titleAndFrame(16, 48);
    return wanted.boundedTo(window.screen()->availableSize() - titleAndFrame);
}

}  // namespace varnel
