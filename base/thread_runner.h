// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The one pool of threads of a program: runs blocks and tasks without using more cores than were
// given. Run throws what a block throws, Begin std::bad_alloc, the rest nothing; where the system
// gives no more threads, those that exist do the work.
#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "base/block_runner.h"

namespace varnel {

// Whether a task keeps a core busy, or mostly waits for a disk.
enum class TaskWeight { Core, Light };

// A number of cores, kept threads that run blocks on those that are free, and kept threads for
// tasks. The threads start on first use and sleep between calls.
//
// The thread that constructs it holds one of the cores. Any other thread, or a thread that waits
// for a process, takes a core before it works and gives it back when done, and a thread that waits
// for another one's work gives its own back meanwhile: then no more threads are busy at any moment
// than there are cores, and none is idle while there is work. Cores go to waiting threads in the
// order in which they asked, and to blocks after them.
class ThreadRunner : public BlockRunner {
  public:
    // 0 takes as many cores as the machine offers.
    explicit ThreadRunner(int cores = 0);
    // No task may be under way any more that waits for the caller's core.
    ~ThreadRunner() override;
    ThreadRunner(const ThreadRunner&) = delete;
    ThreadRunner& operator=(const ThreadRunner&) = delete;

    int Cores() const { return cores_; }
    // Waits until one is free.
    void TakeCore();
    void GiveCore();

    // Begins the task on another thread, which holds a core meanwhile unless the task is a light
    // one. A caller that holds a core gives it back while it waits for the task's future. False
    // when the system gives no thread; the task is then as it was.
    template <class Result>
    bool Begin(std::packaged_task<Result()>& task, TaskWeight weight = TaskWeight::Core) {
        const std::lock_guard lock(mutex_);
        if (!HasTaskThread()) {
            return false;
        }
        tasks_.emplace_back([this, weight, own = std::move(task)]() mutable {
            if (weight == TaskWeight::Core) {
                TakeCore();
                own();
                GiveCore();
            } else {
                own();
            }
        });
        taskCame_.notify_one();
        return true;
    }

    // To be called by a thread that holds a core; it runs blocks, too. Several threads may call it
    // at the same time. None of the blocks runs once this has returned.
    void Run(int blocks, const std::function<void(int)>& block) override;

  private:
    using Lock = std::unique_lock<std::mutex>;
    struct Fork {
        const std::function<void(int)>& block;
        int blocks = 0;
        int next = 0;
        int working = 0;  // threads in a block of it
        std::exception_ptr failure = nullptr;
        std::condition_variable done = {};
    };
    struct Waiting {
        bool hasCore = false;
        std::condition_variable given = {};
    };

    void StartThreads(int wanted);
    bool HasTaskThread();
    void Work();
    void WorkOnTasks();
    void RunTask(Lock& lock);
    void RunBlock(Fork& fork, Lock& lock);
    Fork* NextFork() const;
    void Take(Lock& lock);
    void Give();

    const int cores_;
    std::vector<std::thread> threads_;
    bool mayStartMore_ = true;
    std::mutex mutex_;
    std::condition_variable wake_;  // of the kept threads
    std::vector<Fork*> forks_;      // in the order in which they were begun
    std::deque<Waiting*> waiting_;  // for a core; then none is free
    int free_ = 0;                  // cores
    std::vector<std::thread> taskThreads_;
    std::deque<std::packaged_task<void()>> tasks_;  // not begun yet
    std::size_t idleTaskThreads_ = 0;               // those that no task has begun on
    std::condition_variable taskCame_;
    bool ending_ = false;
};

// Holds a core for the life of this object.
class CoreTaken {
  public:
    explicit CoreTaken(ThreadRunner& cores) : cores_(cores) { cores_.TakeCore(); }
    ~CoreTaken() { cores_.GiveCore(); }
    CoreTaken(const CoreTaken&) = delete;
    CoreTaken& operator=(const CoreTaken&) = delete;

  private:
    ThreadRunner& cores_;
};

// Gives the thread's core to others for the life of this object.
class CoreLent {
  public:
    explicit CoreLent(ThreadRunner& cores) : cores_(cores) { cores_.GiveCore(); }
    ~CoreLent() { cores_.TakeCore(); }
    CoreLent(const CoreLent&) = delete;
    CoreLent& operator=(const CoreLent&) = delete;

  private:
    ThreadRunner& cores_;
};

}  // namespace varnel
