// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The pieces of a file, made in any order by several threads and taken in their own, each as soon
// as all before it are taken. The thread that brings the next one takes it, and what waits for it;
// the others go on making pieces meanwhile, unless too many wait.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>

namespace varnel {

template <class Piece>
class OrderedPieces {
  public:
    // take is called with one piece at a time, and not again once it has returned false or thrown.
    // most: so many may wait while another is being taken.
    OrderedPieces(std::function<bool(Piece&&)> take, std::size_t most)
        : take_(std::move(take)), most_(most) {}

    // Piece n, counted from 0, each once. False when one could not be taken: the rest need not be
    // made. Throws what take throws.
    bool Put(std::size_t n, Piece piece) {
        std::unique_lock lock(mutex_);
        waiting_.emplace(n, std::move(piece));
        taken_.wait(lock, [this] { return !isTaking_ || failed_ || waiting_.size() <= most_; });
        if (!isTaking_) {
            TakeAll(lock);
        }
        return !failed_;
    }
    bool Failed() const {
        const std::scoped_lock lock(mutex_);
        return failed_;
    }

  private:
    void TakeAll(std::unique_lock<std::mutex>& lock) {
        isTaking_ = true;
        while (!failed_ && !waiting_.empty() && waiting_.begin()->first == next_) {
            Piece piece = std::move(waiting_.extract(waiting_.begin()).mapped());
            lock.unlock();
            bool ok = false;
            try {
                ok = take_(std::move(piece));
            } catch (...) {
                lock.lock();
                End(true);
                throw;
            }
            lock.lock();
            ++next_;
            failed_ = !ok;
            taken_.notify_all();
        }
        End(failed_);
    }
    void End(bool failed) {
        isTaking_ = false;
        failed_ = failed;
        taken_.notify_all();
    }

    const std::function<bool(Piece&&)> take_;
    const std::size_t most_;
    mutable std::mutex mutex_;
    std::condition_variable taken_;
    std::map<std::size_t, Piece> waiting_;
    std::size_t next_ = 0;
    bool isTaking_ = false;
    bool failed_ = false;
};

}  // namespace varnel
