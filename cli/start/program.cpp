// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/start/program.h"

#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <iostream>

#include "base/huge_pages.h"
#include "cli/convert.h"
#include "cli/stop_signals.h"
#include "state/settings/autosaving_store.h"

namespace varnel {

namespace {

int Convert(int argc, char* argv[], std::unique_ptr<PictureReader> reader) {
    UnfinishedFile unfinished;
    const StopSignals stop(unfinished);
    const QCoreApplication application(argc, argv);
    const Console console{std::cout,        std::cerr,    ::isatty(STDERR_FILENO) == 1,
                          "varnel-convert", &stop.Came(), &unfinished,
                          &reader};
    if (!stop.Error().isEmpty()) {
        Complain(console, stop.Error());
    }
    ConsoleNotices notices(console);
    const auto store = OpenUserStore(QDateTime::currentDateTime());
    TellOf(*store, notices);
    const int exitCode = RunConvert(QCoreApplication::arguments(), *store, console);
    TellOf(*store, notices);
    return exitCode;
}

}  // namespace

int RunProgram(int argc, char* argv[], std::unique_ptr<PictureReader> reader) {
    KeepFreedMemory();
    UseUtf8Locale();
    const int exitCode = Convert(argc, argv, std::move(reader));
    // All is tidied up; now in the signal's own way, or a shell's loop would go on to its next
    // round after Ctrl-C.
    if (exitCode > exitStopped) {
        std::raise(exitCode - exitStopped);
    }
    return exitCode;
}

}  // namespace varnel
