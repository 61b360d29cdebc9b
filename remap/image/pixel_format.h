// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the pixels of a picture are made of, and how far apart its rows lie. Throws nothing.
#pragma once

#include <cstddef>
#include <cstdint>

namespace varnel {

enum class PixelFormat : std::uint8_t {
    Bgr8,  // blue, green, red: 8 bits each, for the screen
};

constexpr std::size_t BytesPerPixel(PixelFormat format) {
    switch (format) {
        case PixelFormat::Bgr8:
            break;
    }
    return 3;
}

// Bytes from row to row; whole groups of four, as the image library has them.
constexpr std::size_t RowPitch(std::int32_t width, PixelFormat format = PixelFormat::Bgr8) {
    return (static_cast<std::size_t>(width) * BytesPerPixel(format) + 3) / 4 * 4;
}

}  // namespace varnel
