// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The language of the window: chosen in the defaults, never taken from the system.
#pragma once

#include <QCoreApplication>
#include <QTranslator>
#include <map>

namespace varnel {

// A text in every language that has a translation of it, by the language's code.
std::map<QString, QString> InAllLanguages(const char* context, const char* text);

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
