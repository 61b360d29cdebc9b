// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/hold_key.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

namespace varnel {

HoldKey::HoldKey(int key, QWidget* window, std::function<bool()> wanted)
    : QObject(window), key_(key), window_(window), wanted_(std::move(wanted)) {
    QCoreApplication::instance()->installEventFilter(this);
}

void HoldKey::LetGo() {
    if (std::exchange(held_, false)) {
        Q_EMIT Held(false);
    }
}

bool HoldKey::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::WindowDeactivate && watched == window_) {
        LetGo();  // the release goes to another window
        return false;
    }
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease) {
        return false;
    }
    const auto* const key = static_cast<QKeyEvent*>(event);
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (key->key() != key_ || widget == nullptr || widget->window() != window_) {
        return false;
    }
    if (type == QEvent::KeyRelease) {
        const bool mine = held_;
        if (!key->isAutoRepeat()) {
            LetGo();
        }
        return mine;
    }
    if (!held_ && !key->isAutoRepeat() && key->modifiers() == Qt::NoModifier && wanted_()) {
        held_ = true;
        Q_EMIT Held(true);
    }
    return held_;
}

}  // namespace varnel
