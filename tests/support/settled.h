// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Waiting until a window has done what it does when there is time.
#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <algorithm>

namespace varnel::testing {

// Whether one of the windows has a timer running that is to fire once.
inline bool AnyTimerPends() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        const auto timers = window->findChildren<QTimer*>();
        return std::any_of(timers.begin(), timers.end(), [](const QTimer* timer) {
            return timer->isActive() && timer->isSingleShot();
        });
    });
}

// Lets events be handled until none waits and no such timer runs. False when that never comes.
inline bool Settle() {
    return QTest::qWaitFor(
        [] {
            QCoreApplication::processEvents();
            return !AnyTimerPends();
        },
        20'000);
}

}  // namespace varnel::testing
