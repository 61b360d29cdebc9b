// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/thread_runner.h"

#include <algorithm>
#include <system_error>

namespace varnel {

ThreadRunner::ThreadRunner(int cores)
    : cores_(cores > 0 ? cores
                       : std::max(1, static_cast<int>(std::thread::hardware_concurrency()))),
      free_(cores_ - 1) {}

ThreadRunner::~ThreadRunner() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_all();
    taskCame_.notify_all();
    for (std::thread& thread : threads_) {
        thread.join();
    }
    for (std::thread& thread : taskThreads_) {
        thread.join();
    }
}

void ThreadRunner::TakeCore() {
    Lock lock(mutex_);
    Take(lock);
}

void ThreadRunner::GiveCore() {
    const std::lock_guard lock(mutex_);
    Give();
}

void ThreadRunner::Take(Lock& lock) {
    if (free_ > 0) {
        --free_;
        return;
    }
    Waiting waiting;
    waiting_.push_back(&waiting);
    waiting.given.wait(lock, [&waiting] { return waiting.hasCore; });
}

void ThreadRunner::Give() {
    if (!waiting_.empty()) {
        waiting_.front()->hasCore = true;
        waiting_.front()->given.notify_one();
        waiting_.pop_front();
        return;
    }
    ++free_;
    if (NextFork() != nullptr) {
        wake_.notify_one();
    }
}

void ThreadRunner::Run(int blocks, const std::function<void(int)>& block) {
    Fork fork{.block = block, .blocks = blocks};
    Lock lock(mutex_);
    forks_.push_back(&fork);
    StartThreads(std::min(cores_, blocks) - 1);
    for (int n = std::min(free_, blocks - 1); n > 0; --n) {
        wake_.notify_one();
    }
    while (fork.next < fork.blocks) {
        RunBlock(fork, lock);
    }
    if (fork.working > 0) {
        Give();
        fork.done.wait(lock, [&fork] { return fork.working == 0; });
        Take(lock);
    }
    std::erase(forks_, &fork);
    if (fork.failure) {
        std::rethrow_exception(fork.failure);
    }
}

// Where the system gives no more threads, those that exist do the work.
void ThreadRunner::StartThreads(int wanted) {
    try {
        while (mayStartMore_ && static_cast<int>(threads_.size()) < wanted) {
            threads_.emplace_back([this] { Work(); });
        }
    } catch (const std::system_error&) {
        mayStartMore_ = false;
    }
}

// For one more task; starts one where all have something to do.
bool ThreadRunner::HasTaskThread() {
    if (tasks_.size() < idleTaskThreads_) {
        return true;
    }
    try {
        taskThreads_.emplace_back([this] { WorkOnTasks(); });
        ++idleTaskThreads_;
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

void ThreadRunner::RunTask(Lock& lock) {
    --idleTaskThreads_;
    {
        std::packaged_task<void()> task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
    }
    lock.lock();
    ++idleTaskThreads_;
}

void ThreadRunner::WorkOnTasks() {
    Lock lock(mutex_);
    while (true) {
        taskCame_.wait(lock, [this] { return ending_ || !tasks_.empty(); });
        if (tasks_.empty()) {
            return;
        }
        RunTask(lock);
    }
}

void ThreadRunner::Work() {
    Lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return ending_ || (free_ > 0 && NextFork() != nullptr); });
        if (ending_) {
            return;
        }
        --free_;
        for (Fork* fork = NextFork(); fork != nullptr && waiting_.empty(); fork = NextFork()) {
            RunBlock(*fork, lock);
        }
        Give();
    }
}

ThreadRunner::Fork* ThreadRunner::NextFork() const {
    const auto fork =
        std::ranges::find_if(forks_, [](const Fork* f) { return f->next < f->blocks; });
    return fork == forks_.end() ? nullptr : *fork;
}

void ThreadRunner::RunBlock(Fork& fork, Lock& lock) {
    const int n = fork.next++;
    ++fork.working;
    lock.unlock();
    std::exception_ptr failure;
    try {
        fork.block(n);
    } catch (...) {
        failure = std::current_exception();
    }
    lock.lock();
    if (failure) {
        fork.failure = fork.failure ? fork.failure : failure;
        fork.next = fork.blocks;  // nothing more is begun
    }
    if (--fork.working == 0) {
        fork.done.notify_one();
    }
}

}  // namespace varnel
