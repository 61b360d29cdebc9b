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

// Alpha is a share of the picture's own range; the colours are not multiplied by it. Samples of 16
// bits and floating-point ones lie in memory as the machine has them.
enum class PixelFormat : std::uint8_t {
    Bgr8,   // blue, green, red: 0 to 255 each, for the screen
    Bgra8,  // and alpha
    Bgr16,  // 0 to 65535
    Bgra16,
    BgrFloat,  // single precision, black 0 and white 1; brighter than white is kept
    BgraFloat,
};
inline constexpr PixelFormat lastPhotoFormat = PixelFormat::BgraFloat;  // of those that photos have

enum class SampleKind : std::uint8_t { Byte, Word, Float };

constexpr SampleKind SampleKindOf(PixelFormat format) {
    switch (format) {
        case PixelFormat::Bgr16:
        case PixelFormat::Bgra16:
            return SampleKind::Word;
        case PixelFormat::BgrFloat:
        case PixelFormat::BgraFloat:
            return SampleKind::Float;
        case PixelFormat::Bgr8:
        case PixelFormat::Bgra8:
            break;
    }
    return SampleKind::Byte;
}

constexpr bool HasAlpha(PixelFormat format) {
    return format == PixelFormat::Bgra8 || format == PixelFormat::Bgra16 ||
           format == PixelFormat::BgraFloat;
}

constexpr PixelFormat PixelFormatOf(SampleKind samples, bool alpha) {
    switch (samples) {
        case SampleKind::Word:
            return alpha ? PixelFormat::Bgra16 : PixelFormat::Bgr16;
        case SampleKind::Float:
            return alpha ? PixelFormat::BgraFloat : PixelFormat::BgrFloat;
        case SampleKind::Byte:
            break;
    }
    return alpha ? PixelFormat::Bgra8 : PixelFormat::Bgr8;
}

constexpr int BitsPerSample(SampleKind samples) {
    return samples == SampleKind::Byte ? 8 : samples == SampleKind::Word ? 16 : 32;
}
constexpr int BitsPerSample(PixelFormat format) {
    return BitsPerSample(SampleKindOf(format));
}

constexpr std::size_t BytesPerPixel(PixelFormat format) {
    const std::size_t samples = HasAlpha(format) ? 4 : 3;
    return samples * static_cast<std::size_t>(BitsPerSample(format) / 8);
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
            return function(std::integral_constant<std::ptrdiff_t, 3>());
        case PixelFormat::Bgra8:
            return function(std::integral_constant<std::ptrdiff_t, 4>());
        case PixelFormat::Bgr16:
            return function(std::integral_constant<std::ptrdiff_t, 6>());
        case PixelFormat::Bgra16:
            return function(std::integral_constant<std::ptrdiff_t, 8>());
        case PixelFormat::BgrFloat:
            return function(std::integral_constant<std::ptrdiff_t, 12>());
        case PixelFormat::BgraFloat:
            return function(std::integral_constant<std::ptrdiff_t, 16>());
    }
}

// Bytes from row to row; whole groups of four, as the image library has them.
constexpr std::size_t RowPitch(std::int32_t width, PixelFormat format = PixelFormat::Bgr8) {
    return (static_cast<std::size_t>(width) * BytesPerPixel(format) + 3) / 4 * 4;
}

}  // namespace varnel
