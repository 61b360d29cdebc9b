// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/console.h"

#include <clocale>
#include <cstdlib>
#include <cstring>

namespace varnel {

std::string LocalText(const QString& text) {
    return text.toLocal8Bit().toStdString();
}

void Complain(const Console& console, const QString& text) {
    console.err << console.program << ": " << LocalText(text) << "\n";
}

int Refuse(const Console& console, const QString& text) {
    Complain(console, text);
    return exitUsage;
}

int Show(const Console& console, const QString& text) {
    console.out << LocalText(text) << std::flush;
    return exitAllWritten;
}

void UseUtf8Locale() {
    const char* const locale = std::setlocale(LC_CTYPE, "");
    if (locale == nullptr || std::strstr(locale, "UTF") == nullptr) {
        ::setenv("LC_ALL", "C.UTF-8", 1);
    }
}

}  // namespace varnel
