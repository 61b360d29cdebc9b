// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures to measure with.
#pragma once

#include <cmath>

#include "remap/image/bitmap.h"

namespace varnel::bench {

// Soft rings with some grain: about as large as a JPEG as a photo is.
inline BitmapHandle Rings(PixelSize size) {
    BitmapHandle bitmap = NewBitmap(size);
    unsigned grain = 1;
    for (int y = 0; y < size.height; ++y) {
        const auto row = ScanLine(bitmap.get(), y);
        for (std::size_t x = 0; x < row.size(); ++x) {
            grain = grain * 1664525U + 1013904223U;
            const double ring = std::sin(std::hypot(static_cast<double>(x) / 3.0, y) / 50.0);
            row[x] = static_cast<std::uint8_t>(128 + ring * 90 + static_cast<double>(grain >> 28));
        }
    }
    return bitmap;
}

}  // namespace varnel::bench
