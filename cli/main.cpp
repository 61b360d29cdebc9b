// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert, the command-line twin of Varnel. Needs no display.

#include <unistd.h>

#include <QCoreApplication>
#include <iostream>

#include "cli/convert.h"

int main(int argc, char* argv[]) {
    varnel::UseUtf8Locale();
    const QCoreApplication application(argc, argv);
    const auto store = varnel::OpenUserStore();
    return varnel::RunConvert(QCoreApplication::arguments(), *store,
                              {std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1});
}
