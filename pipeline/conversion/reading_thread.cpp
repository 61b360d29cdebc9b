// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/reading_thread.h"

#include <QScopeGuard>
#include <chrono>
#include <utility>

#include "base/error_reason.h"

namespace varnel {

// What can be taken first: the picture that is begun, or nothing once it is there.
class ReadingThread::Early {
  public:
    std::future<LoadedPicture> Future() { return promise_.get_future(); }
    void Tell(LoadedPicture picture) {
        if (!std::exchange(told_, true)) {
            promise_.set_value(std::move(picture));
        }
    }

  private:
    std::promise<LoadedPicture> promise_;
    bool told_ = false;
};

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
    early_ = {};
    Start(request, std::make_shared<Early>());
}

void ReadingThread::BeginEarly(const ReadRequest& request) {
    const auto early = std::make_shared<Early>();
    early_ = early->Future();
    ReadRequest asked = request;
    asked.begun = [early](LoadedPicture picture) { early->Tell(std::move(picture)); };
    Start(asked, early);
}

void ReadingThread::Start(const ReadRequest& request, const std::shared_ptr<Early>& early) {
    givenUp_ = false;
    std::packaged_task<LoadedPicture()> task([this, request, early] {
        const auto atEnd = qScopeGuard([&early] { early->Tell({}); });
        return ReadPicture(Reader(), request, [this] { return !givenUp_; });
    });
    picture_ = task.get_future();
    direct_ = !pool_.Begin(task);
    if (direct_) {
        early_ = {};
        ReadRequest whole = request;
        whole.begun = nullptr;
        Reader().Begin(whole);
    }
}

bool ReadingThread::Wait(int milliseconds) {
    if (direct_) {
        return Reader().Wait(milliseconds);
    }
    const std::future<LoadedPicture>& first = early_.valid() ? early_ : picture_;
    return first.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
}

LoadedPicture ReadingThread::Take() {
    if (direct_) {
        return Reader().Take();
    }
    if (early_.valid()) {
        LoadedPicture picture = early_.get();
        if (picture.arriving) {
            return picture;
        }
    }
    return Whole();
}

LoadedPicture ReadingThread::Whole() {
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
