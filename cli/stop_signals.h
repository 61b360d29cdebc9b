// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Ctrl-C and the termination signal as a request that the work looks at. Throws std::bad_alloc
// only.
#pragma once

#include <QString>
#include <atomic>
#include <csignal>
#include <thread>

#include "files/unfinished_file.h"

namespace varnel {

// While this lives SIGINT and SIGTERM set a number instead of ending the program; the second one
// ends it at once in that signal's own way, whatever it is at: its decoders end with it, and the
// temporary file that it is writing is removed. Where the system gives no thread to wait for them,
// signals keep doing what they did. Signals that were ignored stay ignored, as
// in a shell's background jobs. To be made before any other thread.
class StopSignals {
  public:
    explicit StopSignals(UnfinishedFile& unfinished);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    // The signal that came, or 0.
    const std::atomic<int>& Came() const { return came_; }
    // Why signals end the program at once; empty when they do not.
    const QString& Error() const { return error_; }

  private:
    void StartWaiting();
    void Wait();

    UnfinishedFile& unfinished_;
    QString error_;
    sigset_t signals_{};
    sigset_t before_{};
    std::atomic<int> came_ = 0;
    std::atomic<bool> ending_ = false;
    std::thread waiting_;
};

}  // namespace varnel
