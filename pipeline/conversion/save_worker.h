// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A thread that writes one picture while the next is converted.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "base/thread_runner.h"
#include "remap/encode/save_bitmap.h"

namespace varnel {

class SaveWorker {
  public:
    // Whatever it throws becomes the reason.
    using Job = std::function<SaveResult()>;

    // Without a thread of its own it does its work when it is told to begin. The thread takes one
    // of the cores while it works.
    explicit SaveWorker(bool onThread = true, ThreadRunner* cores = nullptr)
        : onThread_(onThread), cores_(cores) {}
    // Waits for what is under way.
    ~SaveWorker();
    SaveWorker(const SaveWorker&) = delete;
    SaveWorker& operator=(const SaveWorker&) = delete;

    // Nothing else may be under way. Where the system gives no thread, the job is done at once.
    void Begin(Job job);
    // Waits this many milliseconds at most; true when the result can be taken.
    bool Wait(int milliseconds);
    SaveResult Take();

  private:
    bool StartThread();
    SaveResult DoneWithCore(const Job& job);
    void Work();

    const bool onThread_;
    ThreadRunner* const cores_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable done_;
    Job job_;
    std::optional<SaveResult> result_;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace varnel
