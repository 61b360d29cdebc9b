// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A 24-bit source picture as raw rows, checked once when the view is made. Rows count from the
// bottom. Throws nothing.
#pragma once

#include <cstddef>
#include <cstdint>

#include "remap/image/bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel {

struct SourceView {
    const std::uint8_t* bits = nullptr;  // row 0, blue of column 0
    std::ptrdiff_t pitch = 0;            // bytes from row to row
    std::int32_t width = 0;
    std::int32_t height = 0;

    // Of a bitmap of 24 bits; asserts that it is one.
    static SourceView Of(const Bitmap* bitmap);

    // x and y are whole; black off the picture.
    PixelColor operator()(double x, double y) const {
        if (!(x >= 0.0 && x < width && y >= 0.0 && y < height)) {
            return black;
        }
        const std::uint8_t* const pixel =
            bits + static_cast<std::ptrdiff_t>(y) * pitch + 3 * static_cast<std::ptrdiff_t>(x);
        return {pixel[0], pixel[1], pixel[2], 0};
    }
};

}  // namespace varnel
