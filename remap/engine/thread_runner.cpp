// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/engine/thread_runner.h"

#include <algorithm>

namespace varnel {

ThreadRunner::ThreadRunner(int workers)
    : workers_(workers > 0 ? workers
                           : std::max(1, static_cast<int>(std::thread::hardware_concurrency()))) {}

ThreadRunner::~ThreadRunner() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_all();
    for (std::thread& thread : threads_) {
        thread.join();
    }
}

void ThreadRunner::Run(int blocks, const std::function<void(int)>& block) {
    std::unique_lock lock(mutex_);
    while (static_cast<int>(threads_.size()) < std::min(workers_, blocks) - 1) {
        threads_.emplace_back([this] { Work(); });
    }
    block_ = &block;
    next_ = 0;
    blocks_ = blocks;
    unfinished_ = blocks;
    wake_.notify_all();
    TakeBlocks(lock);
    done_.wait(lock, [this] { return unfinished_ == 0; });
    blocks_ = 0;
}

void ThreadRunner::Work() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        TakeBlocks(lock);
        wake_.wait(lock, [this] { return ending_ || next_ < blocks_; });
    }
}

void ThreadRunner::TakeBlocks(std::unique_lock<std::mutex>& lock) {
    while (next_ < blocks_) {
        const int n = next_++;
        const std::function<void(int)>& block = *block_;
        lock.unlock();
        block(n);
        lock.lock();
        if (--unfinished_ == 0) {
            done_.notify_one();
        }
    }
}

}  // namespace varnel
