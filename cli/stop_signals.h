// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Ctrl-C and the termination signal as a request that the work looks at.
#pragma once

#include <atomic>
#include <csignal>
#include <thread>

namespace varnel {

// While this lives SIGINT and SIGTERM set a number instead of ending the program; the second one
// ends it at once in that signal's own way. Signals that were ignored stay ignored, as
// in a shell's background jobs. To be made before any other thread.
class StopSignals {
  public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    // The signal that came, or 0.
    const std::atomic<int>& Came() const { return came_; }

  private:
    void Wait();

    sigset_t signals_{};
    sigset_t before_{};
    std::atomic<int> came_ = 0;
    std::atomic<bool> ending_ = false;
    std::thread waiting_;
};

}  // namespace varnel
