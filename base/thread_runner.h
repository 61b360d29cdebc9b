// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs blocks on several threads without using more cores than were given. Run throws what a block
// throws, the rest nothing; where the system gives no more threads, those that exist do the work.
#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "base/block_runner.h"

namespace varnel {

// A number of cores, and kept threads that run blocks on those that are free. The threads start on
// first use and sleep between calls.
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
    ~ThreadRunner() override;
    ThreadRunner(const ThreadRunner&) = delete;
    ThreadRunner& operator=(const ThreadRunner&) = delete;

    int Cores() const { return cores_; }
    // Waits until one is free.
    void TakeCore();
    void GiveCore();

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
    void Work();
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
