// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>

#include "base/arriving_rows.h"

namespace varnel {

// How far a picture is that can be worked with while it is decoded.
struct ArrivingPicture {
    explicit ArrivingPicture(int height) : rows(height) {}

    ArrivingRows rows;
    // Whether it came whole and nothing is wrong with it: known once the bottom row is there.
    std::atomic<bool> isSound = false;
};

}  // namespace varnel
