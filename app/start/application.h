// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include "base/notices.h"

namespace varnel {

// The last place before Qt's event loop: an event that could not be handled for want of memory or
// threads is told, once for all that come until the user has read it, and the program goes on.
// Slots that make pictures mind their own shortages and say them where they are seen.
class Application : public QApplication {
    Q_OBJECT
  public:
    using QApplication::QApplication;
    // Null: nobody is told.
    void TellTo(Notices* notices) { notices_ = notices; }
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void TellLater(const QString& shortage);

    Notices* notices_ = nullptr;
    bool telling_ = false;
};

}  // namespace varnel
