// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert, the command-line twin of Varnel. Needs no display.

#include <unistd.h>

#include <QCoreApplication>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include "cli/convert.h"

namespace {

// File names are UTF-8 wherever Varnel runs. Under a C locale Qt would switch by itself, but say so
// on stderr each time.
void UseUtf8Locale() {
    const char* const locale = std::setlocale(LC_CTYPE, "");
    if (locale == nullptr || std::strstr(locale, "UTF") == nullptr) {
        ::setenv("LC_ALL", "C.UTF-8", 1);
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    UseUtf8Locale();
    const QCoreApplication application(argc, argv);
    const auto store = varnel::OpenUserStore();
    return varnel::RunConvert(QCoreApplication::arguments(), *store,
                              {std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1});
}
