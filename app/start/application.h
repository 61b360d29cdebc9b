// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include "base/notices.h"

namespace varnel {

// The last handler of errors before Qt's event loop: of an event that could not be handled for want
// of memory or threads a message is shown, one for all that come until the user has read it, and
// the program goes on. Slots that make pictures handle their own shortages and report them where
// they are seen. Throws nothing but what handlers of events throw beside std::bad_alloc and
// std::system_error.
class Application : public QApplication {
    Q_OBJECT
  public:
    using QApplication::QApplication;
    // Where the message goes. Null: no message is shown.
    void ShowTo(Notices* notices) { notices_ = notices; }
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void ShowLater(const QString& shortage);

    Notices* notices_ = nullptr;
    bool telling_ = false;
};

}  // namespace varnel
