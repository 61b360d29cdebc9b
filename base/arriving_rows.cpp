// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/arriving_rows.h"

namespace varnel {

void ArrivingRows::Came(int lowest) {
    {
        const std::scoped_lock lock(mutex_);
        lowest_.store(lowest, std::memory_order_release);
    }
    came_.notify_all();
}

void ArrivingRows::WaitLonger(int row) const {
    std::unique_lock lock(mutex_);
    came_.wait(lock, [this, row] { return lowest_.load(std::memory_order_acquire) <= row; });
}

}  // namespace varnel
