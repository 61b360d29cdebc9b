// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/application.h"

#include <new>

#include "base/shortage.h"

namespace varnel {

bool Application::notify(QObject* receiver, QEvent* event) {
    bool handled = false;
    const QString shortage = Shortage([&] { handled = QApplication::notify(receiver, event); });
    if (!shortage.isEmpty()) {
        ShowLater(shortage);
    }
    return handled;
}

// Not at once: the event may have been one of painting, above which no box can be shown.
void Application::ShowLater(const QString& shortage) {
    if (telling_ || notices_ == nullptr) {
        return;
    }
    try {
        QMetaObject::invokeMethod(
            this,
            [this, shortage] {
                if (notices_ != nullptr) {
                    notices_->Tell(shortage, tr("What was just begun was not done."));
                }
                telling_ = false;
            },
            Qt::QueuedConnection);
        telling_ = true;
    } catch (const std::bad_alloc&) {
        // the next event that fails reports it
    }
}

}  // namespace varnel
