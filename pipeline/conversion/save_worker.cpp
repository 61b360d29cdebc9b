// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/save_worker.h"
#include "base/error_reason.h"

#include <chrono>
#include <exception>
#include <system_error>
#include <utility>

namespace varnel {

namespace {

SaveResult Done(const SaveWorker::Job& job) {
    try {
        return job();
    } catch (const std::exception& error) {
        return {false, ReasonFor(error)};
    }
}

}  // namespace

SaveWorker::~SaveWorker() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) {
        thread_.join();
    }
}

bool SaveWorker::StartThread() {
    if (!onThread_) {
        return false;
    }
    if (!thread_.joinable()) {
        try {
            thread_ = std::thread([this] { Work(); });
        } catch (const std::system_error&) {
            return false;
        }
    }
    return true;
}

void SaveWorker::Begin(Job job) {
    if (!StartThread()) {
        result_ = Done(job);
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        job_ = std::move(job);
    }
    wake_.notify_one();
}

bool SaveWorker::Wait(int milliseconds) {
    std::unique_lock lock(mutex_);
    return done_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                          [this] { return result_.has_value(); });
}

SaveResult SaveWorker::Take() {
    const std::lock_guard lock(mutex_);
    SaveResult result = std::move(*result_);
    result_.reset();
    return result;
}

SaveResult SaveWorker::DoneWithCore(const Job& job) {
    if (cores_ == nullptr) {
        return Done(job);
    }
    const CoreTaken core(*cores_);
    return Done(job);
}

void SaveWorker::Work() {
    std::unique_lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return ending_ || job_; });
        if (!job_) {
            return;
        }
        const Job job = std::exchange(job_, nullptr);
        lock.unlock();
        SaveResult result = DoneWithCore(job);
        lock.lock();
        result_ = std::move(result);
        done_.notify_all();
    }
}

}  // namespace varnel
