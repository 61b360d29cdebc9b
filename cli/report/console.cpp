// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/console.h"

#include <langinfo.h>

#include <clocale>
#include <cstdlib>
#include <cstring>

namespace varnel {

std::string LocalText(const QString& text) {
    return text.toLocal8Bit().toStdString();
}

QString OneLine(const QString& text) {
    QString line;
    for (const QChar c : text) {
        if (c == u'\n') {
            line += QStringLiteral("\\n");
        } else if (c.category() == QChar::Other_Control) {
            line += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QChar(u'0'));
        } else {
            line += c;
        }
    }
    return line;
}

void Complain(const Console& console, const QString& text) {
    console.err << console.program << ": " << LocalText(OneLine(text)) << "\n";
}

void ConsoleNotices::Tell(const QString& text, const QString& detail) {
    Complain(console_, detail.isEmpty() ? text : text + QStringLiteral(": ") + detail);
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
    if (std::setlocale(LC_CTYPE, "") != nullptr &&
        std::strcmp(::nl_langinfo(CODESET), "UTF-8") == 0) {
        return;
    }
    // Numbers and dates keep the user's form, unless LC_ALL rules everything.
    const char* const all = std::getenv("LC_ALL");
    ::setenv(all != nullptr && *all != '\0' ? "LC_ALL" : "LC_CTYPE", "C.UTF-8", 1);
}

}  // namespace varnel
