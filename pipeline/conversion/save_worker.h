// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing one file while the caller does something else. Throws std::bad_alloc only.
#pragma once

#include <functional>
#include <future>

#include "base/thread_runner.h"
#include "remap/encode/save_bitmap.h"

namespace varnel {

class SaveWorker {
  public:
    // What it throws becomes the reason.
    using Job = std::function<SaveResult()>;

    // Without a pool each job is done where it is begun. The pool outlives the worker, whose owner
    // holds one of the cores.
    explicit SaveWorker(ThreadRunner* pool, TaskWeight weight = TaskWeight::Core)
        : pool_(pool), weight_(weight) {}
    // Waits for what is under way.
    ~SaveWorker();
    SaveWorker(const SaveWorker&) = delete;
    SaveWorker& operator=(const SaveWorker&) = delete;

    // Nothing else may be under way. Where the system gives no thread, the job is done at once.
    void Begin(Job job);
    // Whether the result can be taken; waits for it this many milliseconds at most. The caller
    // keeps its core meanwhile unless it lends it (CoreLent).
    bool Wait(int milliseconds) const;
    SaveResult Take();

  private:
    ThreadRunner* const pool_;
    const TaskWeight weight_;
    std::future<SaveResult> result_;
};

}  // namespace varnel
