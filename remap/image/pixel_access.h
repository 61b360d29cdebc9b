// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Thin wrappers for single pixels and metadata. Each returns true exactly when it did what it was
// asked to do. Rows count from the bottom row. Throws nothing unless it says so.
#pragma once

#include <cmath>
#include <cstring>
#include <limits>

#include "remap/image/bitmap.h"

namespace varnel {

struct PixelColor {
    std::uint8_t blue = 0;
    std::uint8_t green = 0;
    std::uint8_t red = 0;
    std::uint8_t reserved = 0;
};

// The colour that reads off the source give: all four bytes 0.
inline constexpr PixelColor black{};

enum class Channel { Blue, Green, Red };

constexpr std::uint8_t PixelColor::*MemberOf(Channel channel) {
    return channel == Channel::Blue    ? &PixelColor::blue
           : channel == Channel::Green ? &PixelColor::green
                                       : &PixelColor::red;
}

// Between samples of 8 bits and those of a format; a sample of one range stands for the same part
// of the other, rounded. Floating-point samples beyond 0 to 1 become 0 and 255, no number 0.
constexpr std::uint8_t ByteOf(std::uint8_t sample) {
    return sample;
}
constexpr std::uint8_t ByteOf(std::uint16_t sample) {
    return static_cast<std::uint8_t>((sample + 128U) / 257U);
}
inline std::uint8_t ByteOf(float sample) {
    return !(sample > 0.0F) ? std::uint8_t{0}
           : sample >= 1.0F ? std::uint8_t{255}
                            : static_cast<std::uint8_t>(std::lround(sample * 255.0F));
}
template <class Sample>
constexpr Sample FromByte(std::uint8_t value) {
    if constexpr (std::is_same_v<Sample, float>) {
        return static_cast<float>(value) / 255.0F;
    } else {
        return static_cast<Sample>(value * (std::numeric_limits<Sample>::max() / 255U));
    }
}

// Calls the function with a sample of the kind that a format has, 0, for inner loops.
template <class Function>
decltype(auto) WithSample(SampleKind kind, const Function& function) {
    switch (kind) {
        case SampleKind::Word:
            return function(std::uint16_t{});
        case SampleKind::Float:
            return function(float{});
        case SampleKind::Byte:
            break;
    }
    return function(std::uint8_t{});
}

// A sample of the pixel that begins there: 0 blue, 1 green, 2 red, 3 alpha.
template <class Sample>
Sample SampleAt(const std::uint8_t* pixel, std::size_t place) {
    Sample sample;
    std::memcpy(&sample, pixel + place * sizeof(Sample), sizeof(Sample));
    return sample;
}
template <class Sample>
void PutSample(std::uint8_t* pixel, std::size_t place, Sample sample) {
    std::memcpy(pixel + place * sizeof(Sample), &sample, sizeof(Sample));
}

// The colour of the pixel that begins there, in 8 bits.
inline PixelColor ColourAt(const std::uint8_t* pixel, PixelFormat format) {
    return WithSample(SampleKindOf(format), [&](auto kind) -> PixelColor {
        using Sample = decltype(kind);
        return {ByteOf(SampleAt<Sample>(pixel, 0)), ByteOf(SampleAt<Sample>(pixel, 1)),
                ByteOf(SampleAt<Sample>(pixel, 2)), 0};
    });
}
// The fourth byte is the alpha of formats that have it.
inline void PutColour(std::uint8_t* pixel, const PixelColor& colour, PixelFormat format) {
    WithSample(SampleKindOf(format), [&](auto kind) {
        using Sample = decltype(kind);
        PutSample(pixel, 0, FromByte<Sample>(colour.blue));
        PutSample(pixel, 1, FromByte<Sample>(colour.green));
        PutSample(pixel, 2, FromByte<Sample>(colour.red));
        if (HasAlpha(format)) {
            PutSample(pixel, 3, FromByte<Sample>(colour.reserved));
        }
    });
}

// False when (x, y) lies outside the bitmap; the colour is then left as it was, as its fourth byte
// is in any case.
bool GetPixelColor(const Bitmap* bitmap, std::int32_t x, std::int32_t y, PixelColor& colour);

// False when (x, y) lies outside the bitmap; nothing is written then.
bool SetPixelColor(Bitmap* bitmap, std::int32_t x, std::int32_t y, const PixelColor& colour);

// Row y of the bitmap as Bgr8 for the screen, three bytes a pixel; there has to be room for a whole
// row.
void CopyForScreen(const Bitmap* bitmap, int y, std::uint8_t* out);

// Copies the source's metadata to the destination, all but the colour profile. False when one of
// them is missing. Throws std::bad_alloc.
bool CloneMetadata(Bitmap* destination, const Bitmap* source);

}  // namespace varnel
