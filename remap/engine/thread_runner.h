// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "remap/engine/block_runner.h"

namespace varnel {

// Runs blocks on kept threads, which start on first use and sleep between calls. The caller's
// thread works as well. Nothing runs once Run has returned.
class ThreadRunner : public BlockRunner {
  public:
    // 0 takes as many workers, the caller included, as the machine offers.
    explicit ThreadRunner(int workers = 0);
    ~ThreadRunner() override;
    ThreadRunner(const ThreadRunner&) = delete;
    ThreadRunner& operator=(const ThreadRunner&) = delete;

    void Run(int blocks, const std::function<void(int)>& block) override;

  private:
    void StartThreads(int wanted);
    void Work();
    void TakeBlocks(std::unique_lock<std::mutex>& lock);

    int workers_;
    std::vector<std::thread> threads_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable done_;
    const std::function<void(int)>* block_ = nullptr;
    int next_ = 0;
    int blocks_ = 0;
    int working_ = 0;  // threads in TakeBlocks
    std::exception_ptr failure_;
    bool ending_ = false;
};

}  // namespace varnel
