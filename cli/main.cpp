// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert, the command-line twin of Varnel. Needs no display.

#include <unistd.h>

#include <QCoreApplication>
#include <iostream>

#include "cli/convert.h"
#include "cli/stop_signals.h"
#include "remap/large_pages.h"
#include "state/telling_store.h"

int main(int argc, char* argv[]) {
    varnel::KeepFreedMemory();
    varnel::UseUtf8Locale();
    const varnel::StopSignals stop;
    const QCoreApplication application(argc, argv);
    const varnel::Console console{std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1,
                                  "varnel-convert", &stop.Came()};
    varnel::ConsoleNotices notices(console);
    const auto store = varnel::OpenUserStore(QDateTime::currentDateTime());
    varnel::TellOf(*store, notices);
    const int exitCode = varnel::RunConvert(QCoreApplication::arguments(), *store, console);
    varnel::TellOf(*store, notices);
    return exitCode;
}
