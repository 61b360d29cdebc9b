// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/reading_thread.h"

#include <chrono>
#include <utility>

#include "base/error_reason.h"

namespace varnel {

ReadingThread::~ReadingThread() {
    ReadingThread::Cancel();
}

PictureReader& ReadingThread::Reader() {
    if (reader_ == nullptr) {
        own_ = NewPictureReader();
        reader_ = own_.get();
    }
    return *reader_;
}

void ReadingThread::Begin(const ReadRequest& request) {
    givenUp_ = false;
    std::packaged_task<LoadedPicture()> task(
        [this, request] { return ReadPicture(Reader(), request, [this] { return !givenUp_; }); });
    picture_ = task.get_future();
    direct_ = !pool_.Begin(task);
    if (direct_) {
        Reader().Begin(request);
    }
}

bool ReadingThread::Wait(int milliseconds) {
    return direct_ ? Reader().Wait(milliseconds)
                   : picture_.wait_for(std::chrono::milliseconds(milliseconds)) ==
                         std::future_status::ready;
}

LoadedPicture ReadingThread::Take() {
    if (direct_) {
        return Reader().Take();
    }
    LoadedPicture picture;
    const Reason error = Attempt([&] { picture = picture_.get(); });
    return error.isEmpty() ? std::move(picture) : LoadedPicture::Refused(error);
}

void ReadingThread::Cancel() {
    if (direct_) {
        Reader().Cancel();
    } else if (picture_.valid()) {
        givenUp_ = true;
        {
            const CoreLent lent(pool_);
            picture_.wait();
        }
        picture_ = {};
    }
}

}  // namespace varnel
