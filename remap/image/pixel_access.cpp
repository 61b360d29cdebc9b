// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/pixel_access.h"

#include <utility>

namespace varnel {

namespace {

// Where the pixel is in the bytes of the bitmap; none outside and in other formats.
std::ptrdiff_t PlaceOf(const Bitmap& bitmap, std::int32_t x, std::int32_t y) {
    const auto [width, height] = bitmap.Size();
    const bool inside = x >= 0 && x < width && y >= 0 && y < height;
    if (!inside || bitmap.Format() != PixelFormat::Bgr8) {
        return -1;
    }
    return y * static_cast<std::ptrdiff_t>(bitmap.Pitch()) + 3 * std::ptrdiff_t{x};
}

}  // namespace

bool GetPixelColor(const Bitmap* bitmap, std::int32_t x, std::int32_t y, PixelColor& colour) {
    const std::ptrdiff_t place = PlaceOf(*bitmap, x, y);
    if (place < 0) {
        return false;
    }
    const std::uint8_t* const pixel = bitmap->Bits() + place;
    colour.blue = pixel[0];
    colour.green = pixel[1];
    colour.red = pixel[2];
    return true;
}

bool SetPixelColor(Bitmap* bitmap, std::int32_t x, std::int32_t y, const PixelColor& colour) {
    const std::ptrdiff_t place = PlaceOf(*bitmap, x, y);
    if (place < 0) {
        return false;
    }
    std::uint8_t* const pixel = bitmap->Bits() + place;
    pixel[0] = colour.blue;
    pixel[1] = colour.green;
    pixel[2] = colour.red;
    return true;
}

bool CloneMetadata(Bitmap* destination, const Bitmap* source) {
    if (destination == nullptr || source == nullptr) {
        return false;
    }
    QByteArray ownProfile = destination->metadata.colourProfile;
    destination->metadata = source->metadata;
    destination->metadata.colourProfile = std::move(ownProfile);
    return true;
}

}  // namespace varnel
