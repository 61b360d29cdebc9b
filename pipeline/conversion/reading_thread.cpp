// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/reading_thread.h"

#include <chrono>
#include <new>
#include <system_error>
#include <utility>

namespace varnel {

ReadingThread::~ReadingThread() {
    ReadingThread::Cancel();
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) {
        thread_.join();
    }
}

bool ReadingThread::StartThread() {
    if (!direct_ && !thread_.joinable()) {
        try {
            thread_ = std::thread([this] { Work(); });
        } catch (const std::system_error&) {
            direct_ = true;
        }
    }
    return !direct_;
}

PictureReader& ReadingThread::Reader() {
    if (reader_ == nullptr) {
        own_ = NewPictureReader();
        reader_ = own_.get();
    }
    return *reader_;
}

void ReadingThread::Begin(const ReadRequest& request) {
    if (!StartThread()) {
        Reader().Begin(request);
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        request_ = request;
        givenUp_ = false;
    }
    wake_.notify_one();
}

bool ReadingThread::Wait(int milliseconds) {
    if (direct_) {
        return Reader().Wait(milliseconds);
    }
    std::unique_lock lock(mutex_);
    return done_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                          [this] { return picture_.has_value(); });
}

LoadedPicture ReadingThread::Take() {
    if (direct_) {
        return Reader().Take();
    }
    const std::lock_guard lock(mutex_);
    LoadedPicture picture = std::move(*picture_);
    picture_.reset();
    return picture;
}

void ReadingThread::Cancel() {
    if (direct_) {
        Reader().Cancel();
        return;
    }
    std::unique_lock lock(mutex_);
    if (request_) {
        givenUp_ = true;
        lock.unlock();
        const CoreLent lent(cores_);
        lock.lock();
        done_.wait(lock, [this] { return !request_; });
        lock.unlock();
    }
    picture_.reset();
}

bool ReadingThread::IsGivenUp() {
    const std::lock_guard lock(mutex_);
    return givenUp_;
}

LoadedPicture ReadingThread::Read(const ReadRequest& request) {
    try {
        return ReadPicture(Reader(), request, [this] { return !IsGivenUp(); });
    } catch (const std::bad_alloc&) {
        return LoadedPicture::Refused(ReasonCode::NotEnoughMemory);
    }
}

void ReadingThread::Work() {
    std::unique_lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return ending_ || request_; });
        if (!request_) {
            return;
        }
        const ReadRequest request = *request_;
        lock.unlock();
        std::optional<CoreTaken> core(std::in_place, cores_);
        LoadedPicture picture = Read(request);
        core.reset();
        lock.lock();
        picture_ = std::move(picture);
        request_.reset();
        done_.notify_all();
    }
}

}  // namespace varnel
