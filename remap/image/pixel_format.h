// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the pixels of a picture are made of, and how far apart they and its rows lie. Another format
// is an entry here, its way to and from a colour in pixel_access.h, and what reads and codes it;
// all else goes by the numbers of this file. Throws nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace varnel {

enum class PixelFormat : std::uint8_t {
    Bgr8,   // blue, green, red: 8 bits each, for the screen
    Bgra8,  // and alpha, by which the colours are not multiplied: of results that are written
};
inline constexpr PixelFormat lastPhotoFormat = PixelFormat::Bgr8;  // of those that photos have

constexpr std::size_t BytesPerPixel(PixelFormat format) {
    switch (format) {
        case PixelFormat::Bgra8:
            return 4;
        case PixelFormat::Bgr8:
            break;
    }
    return 3;
}

constexpr bool HasAlpha(PixelFormat format) {
    return format == PixelFormat::Bgra8;
}

constexpr int BitsPerSample(PixelFormat format) {
    switch (format) {
        case PixelFormat::Bgr8:
        case PixelFormat::Bgra8:
            break;
    }
    return 8;
}

// From a pixel to its right neighbour, in bytes.
constexpr std::ptrdiff_t PixelStep(PixelFormat format) {
    return static_cast<std::ptrdiff_t>(BytesPerPixel(format));
}

// Calls the function with BytesPerPixel as a constant of the compiler, for inner loops.
template <class Function>
void WithBytesPerPixel(PixelFormat format, const Function& function) {
    switch (format) {
        case PixelFormat::Bgr8:
            function(std::integral_constant<std::ptrdiff_t, 3>());
            break;
        case PixelFormat::Bgra8:
            function(std::integral_constant<std::ptrdiff_t, 4>());
            break;
    }
}

// Bytes from row to row; whole groups of four, as the image library has them.
constexpr std::size_t RowPitch(std::int32_t width, PixelFormat format = PixelFormat::Bgr8) {
    return (static_cast<std::size_t>(width) * BytesPerPixel(format) + 3) / 4 * 4;
}

}  // namespace varnel
