// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Rows of a picture that come while others are worked with already. Throws nothing.
#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>

namespace varnel {

// One thread tells of rows, any others wait for them. Rows count from the bottom row; the topmost
// comes first.
class ArrivingRows {
  public:
    // The height of the picture, of which no row is there yet.
    explicit ArrivingRows(int height) : lowest_(height) {}

    // All rows from this one to the top are there.
    void Came(int lowest);
    // Whoever waits is to go on: no more come, whether they are all there or not.
    void End() { Came(0); }
    // Returns once the rows from this one to the top are there.
    void WaitFor(int row) const {
        if (row < lowest_.load(std::memory_order_acquire)) {
            WaitLonger(std::max(row, 0));
        }
    }

  private:
    void WaitLonger(int row) const;

    std::atomic<int> lowest_;
    mutable std::mutex mutex_;
    mutable std::condition_variable came_;
};

}  // namespace varnel
