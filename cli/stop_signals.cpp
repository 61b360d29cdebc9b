// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/stop_signals.h"

#include <unistd.h>

#include <system_error>

#include "cli/report/console.h"

namespace varnel {

StopSignals::StopSignals(UnfinishedFile& unfinished) : unfinished_(unfinished) {
    sigemptyset(&signals_);
    for (const int signal : {SIGINT, SIGTERM}) {
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
            sigaddset(&signals_, signal);
        }
    }
    // For all threads that are made from now on, so that only the waiting one receives them.
    pthread_sigmask(SIG_BLOCK, &signals_, &before_);
    if (sigismember(&signals_, SIGTERM) == 1 || sigismember(&signals_, SIGINT) == 1) {
        StartWaiting();
    }
}

void StopSignals::StartWaiting() {
    try {
        waiting_ = std::thread([this] { Wait(); });
    } catch (const std::system_error& error) {
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
        error_ = QStringLiteral(
                     "Ctrl-C and SIGTERM will end the program at once: no thread can be started "
                     "to wait for them (%1)")
                     .arg(QString::fromLocal8Bit(error.code().message().c_str()));
    }
}

StopSignals::~StopSignals() {
    if (waiting_.joinable()) {
        ending_ = true;
        pthread_kill(waiting_.native_handle(),
                     sigismember(&signals_, SIGTERM) == 1 ? SIGTERM : SIGINT);
        waiting_.join();
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void StopSignals::Wait() {
    while (true) {
        int signal = 0;
        if (sigwait(&signals_, &signal) != 0) {
            continue;
        }
        if (ending_) {
            return;
        }
        if (came_ != 0) {
            unfinished_.RemoveForEver();
            std::signal(signal, SIG_DFL);
            pthread_sigmask(SIG_UNBLOCK, &signals_, nullptr);
            pthread_kill(pthread_self(), signal);
            _exit(exitStopped + signal);
        }
        came_ = signal;
    }
}

}  // namespace varnel
