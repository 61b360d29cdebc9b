// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pixels as a codec gave them, before they are brought to 24-bit colour. Throws nothing.
#pragma once

#include <cstddef>

#include "base/pixel_size.h"

namespace varnel {

// Does not own the rows.
struct SampleRows {
    PixelSize size;
    const std::byte* bottom = nullptr;  // the bottom row
    std::size_t pitch = 0;              // bytes from a row to the one above
    int samplesPerPixel = 0;
    int bytesPerSample = 0;

    // Row y, counted from the bottom.
    const std::byte* Row(int y) const { return bottom + static_cast<std::size_t>(y) * pitch; }
};

}  // namespace varnel
