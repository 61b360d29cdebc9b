// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The language of the window: chosen in the defaults, never taken from the system.
#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace varnel {

// Installed as long as it lives. Made before the first text is asked for.
class WindowLanguage {
  public:
    // A code of the defaults' list. Without a translation of that name the texts stay English.
    WindowLanguage(QCoreApplication& application, const QString& code);
    ~WindowLanguage();
    WindowLanguage(const WindowLanguage&) = delete;
    WindowLanguage& operator=(const WindowLanguage&) = delete;

  private:
    QCoreApplication& application_;
    QTranslator toolkit_;  // the standard buttons and file dialogs, where the system has them
    QTranslator own_;
};

}  // namespace varnel
