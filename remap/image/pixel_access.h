// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Thin wrappers for single pixels and metadata. Each returns true exactly when it did what it was
// asked to do. Rows count from the bottom row. Throws nothing unless it says so.
#pragma once

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

// The colour of the pixel that begins there.
inline PixelColor ColourAt(const std::uint8_t* pixel, PixelFormat format) {
    switch (format) {
        case PixelFormat::Bgr8:
        case PixelFormat::Bgra8:
            break;
    }
    return {pixel[0], pixel[1], pixel[2], 0};
}
// The fourth byte is the alpha of formats that have it.
inline void PutColour(std::uint8_t* pixel, const PixelColor& colour, PixelFormat format) {
    switch (format) {
        case PixelFormat::Bgra8:
            pixel[3] = colour.reserved;
            break;
        case PixelFormat::Bgr8:
            break;
    }
    pixel[0] = colour.blue;
    pixel[1] = colour.green;
    pixel[2] = colour.red;
}

// False when (x, y) lies outside the bitmap; the colour is then left as it was, as its fourth byte
// is in any case.
bool GetPixelColor(const Bitmap* bitmap, std::int32_t x, std::int32_t y, PixelColor& colour);

// False when (x, y) lies outside the bitmap; nothing is written then.
bool SetPixelColor(Bitmap* bitmap, std::int32_t x, std::int32_t y, const PixelColor& colour);

// Row y of the bitmap as Bgr8, three bytes a pixel; there has to be room for a whole row.
void CopyForScreen(const Bitmap* bitmap, int y, std::uint8_t* out);

// Copies the source's metadata to the destination, all but the colour profile. False when one of
// them is missing. Throws std::bad_alloc.
bool CloneMetadata(Bitmap* destination, const Bitmap* source);

}  // namespace varnel
