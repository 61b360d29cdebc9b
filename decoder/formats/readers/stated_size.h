// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace varnel {

// Sides as a file states them, in pixels; they may be anything.
struct StatedSize {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

}  // namespace varnel
