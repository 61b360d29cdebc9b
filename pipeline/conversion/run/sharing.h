// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Among which threads a result is drawn and encoded. Throws nothing.
#pragma once

#include <cstdint>

#include "base/pixel_size.h"
#include "base/thread_runner.h"

namespace varnel {

class Sharing {
  public:
    // Whether other photos are read meanwhile.
    Sharing(ThreadRunner& cores, bool readsAhead)
        : cores_(cores), smallAlone_(readsAhead && cores.Cores() == 2) {}

    // For a result of that size; null: the thread at hand alone. Two cores have enough to do with
    // one small picture being drawn and the next one being decoded: to hand out the blocks of one
    // of 600 x 400 costs 2 % of processor time and gains nothing by the clock. From 1200 x 800 on
    // it gains.
    BlockRunner* For(PixelSize result) const {
        constexpr std::int64_t mostAlone = 400'000;  // pixels
        const bool isSmall = std::int64_t{result.width} * result.height <= mostAlone;
        return smallAlone_ && isSmall ? nullptr : &cores_;
    }

    ThreadRunner& Cores() const { return cores_; }

  private:
    ThreadRunner& cores_;
    bool smallAlone_;
};

}  // namespace varnel
