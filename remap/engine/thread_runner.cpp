// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/engine/thread_runner.h"

#include <algorithm>
#include <system_error>
#include <utility>

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
    StartThreads(std::min(workers_, blocks) - 1);
    block_ = &block;
    next_ = 0;
    blocks_ = blocks;
    working_ = 0;
    failure_ = nullptr;
    wake_.notify_all();
    TakeBlocks(lock);
    done_.wait(lock, [this] { return working_ == 0; });
    blocks_ = 0;
    if (failure_) {
        std::rethrow_exception(std::exchange(failure_, nullptr));
    }
}

// Where the system gives no more threads, those that are there do the work.
void ThreadRunner::StartThreads(int wanted) {
    try {
        while (static_cast<int>(threads_.size()) < wanted) {
            threads_.emplace_back([this] { Work(); });
        }
    } catch (const std::system_error&) {
        workers_ = static_cast<int>(threads_.size()) + 1;
    }
}

void ThreadRunner::Work() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        TakeBlocks(lock);
        wake_.wait(lock, [this] { return ending_ || next_ < blocks_; });
    }
}

void ThreadRunner::TakeBlocks(std::unique_lock<std::mutex>& lock) {
    ++working_;
    while (next_ < blocks_) {
        const int n = next_++;
        const std::function<void(int)>& block = *block_;
        lock.unlock();
        std::exception_ptr failure;
        try {
            block(n);
        } catch (...) {
            failure = std::current_exception();
        }
        lock.lock();
        if (failure) {
            failure_ = failure_ ? failure_ : failure;
            next_ = blocks_;  // nothing more is begun
        }
    }
    if (--working_ == 0) {
        done_.notify_one();
    }
}

}  // namespace varnel
