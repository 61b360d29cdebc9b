// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert, the command-line twin of Varnel. Needs no display.

#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <iostream>

#include "base/huge_pages.h"
#include "cli/convert.h"
#include "cli/early_reader.h"
#include "cli/stop_signals.h"
#include "state/settings/autosaving_store.h"

namespace {

int Convert(int argc, char* argv[]) {
    std::unique_ptr<varnel::PictureReader> reader = varnel::EarlyReader(argc, argv);
    varnel::UnfinishedFile unfinished;
    const varnel::StopSignals stop(unfinished);
    const QCoreApplication application(argc, argv);
    const varnel::Console console{std::cout,        std::cerr,    ::isatty(STDERR_FILENO) == 1,
                                  "varnel-convert", &stop.Came(), &unfinished,
                                  &reader};
    if (!stop.Error().isEmpty()) {
        varnel::Complain(console, stop.Error());
    }
    varnel::ConsoleNotices notices(console);
    const auto store = varnel::OpenUserStore(QDateTime::currentDateTime());
    varnel::TellOf(*store, notices);
    const int exitCode = varnel::RunConvert(QCoreApplication::arguments(), *store, console);
    varnel::TellOf(*store, notices);
    return exitCode;
}

}  // namespace

int main(int argc, char* argv[]) {
    varnel::KeepFreedMemory();
    varnel::UseUtf8Locale();
    const int exitCode = Convert(argc, argv);
    // All is tidied up; now in the signal's own way, or a shell's loop would go on to its next
    // round after Ctrl-C.
    if (exitCode > varnel::exitStopped) {
        std::raise(exitCode - varnel::exitStopped);
    }
    return exitCode;
}
