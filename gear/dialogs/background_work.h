// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One piece of work at a time on a thread of its own; its result comes back as an event. Throws
// std::bad_alloc only; work that lacks memory gives an empty result.
#pragma once

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <new>
#include <system_error>
#include <thread>
#include <utility>

namespace varnel {

// A member of the receiver, so that nothing comes once the receiver is destroyed; destroying it
// asks the work to stop and waits for it.
template <class Result>
class BackgroundWork {
  public:
    using Stopped = std::atomic<bool>;

    explicit BackgroundWork(QObject* receiver) : receiver_(receiver) {}
    ~BackgroundWork() {
        stopped_ = true;
        Join();
    }
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;

    bool Busy() const { return thread_.joinable(); }
    // Nothing is under way. Where the system gives no thread, the work is done here.
    void Start(std::function<Result(const Stopped&)> work, std::function<void(Result)> done) {
        const auto run = [this, work = std::move(work), done = std::move(done)] {
            auto result = std::make_shared<Result>(Do(work));
            QMetaObject::invokeMethod(
                receiver_,
                [this, result, done] {
                    Join();
                    done(std::move(*result));
                },
                Qt::QueuedConnection);
        };
        try {
            thread_ = std::thread(run);
        } catch (const std::system_error&) {
            run();
        }
    }

  private:
    Result Do(const std::function<Result(const Stopped&)>& work) {
        try {
            return work(stopped_);
        } catch (const std::bad_alloc&) {
            return {};
        }
    }
    void Join() {
        if (thread_.joinable()) {
            thread_.join();
        }
    }

    QObject* receiver_;
    Stopped stopped_ = false;
    std::thread thread_;
};

}  // namespace varnel
