// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/pixel_access.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "remap/image/levels/byte_coding.h"

namespace varnel {

namespace {

// Where the pixel is, from the bitmap's first byte; nothing outside.
std::optional<std::ptrdiff_t> PlaceOf(const Bitmap& bitmap, std::int32_t x, std::int32_t y) {
    const auto [width, height] = bitmap.Size();
    if (x < 0 || x >= width || y < 0 || y >= height) {
        return std::nullopt;
    }
    return y * bitmap.Pitch() + x * PixelStep(bitmap.Format());
}

}  // namespace

PixelLevels GetLevels(const Bitmap* bitmap, std::int32_t x, std::int32_t y) {
    const auto place = PlaceOf(*bitmap, x, y);
    return place ? LevelsAt(bitmap->Bits() + *place, bitmap->Format()) : noLight;
}

void SetLevels(Bitmap* bitmap, std::int32_t x, std::int32_t y, const PixelLevels& levels,
               std::optional<Channel> only) {
    if (const auto place = PlaceOf(*bitmap, x, y)) {
        PutLevels(bitmap->Bits() + *place, levels, bitmap->Format(), only);
    }
}

bool GetPixelColor(const Bitmap* bitmap, std::int32_t x, std::int32_t y, PixelColor& colour) {
    const auto place = PlaceOf(*bitmap, x, y);
    if (!place) {
        return false;
    }
    const std::uint8_t reserved = colour.reserved;
    colour = ColourAt(bitmap->Bits() + *place, bitmap->Format());
    colour.reserved = reserved;
    return true;
}

bool SetPixelColor(Bitmap* bitmap, std::int32_t x, std::int32_t y, const PixelColor& colour) {
    const auto place = PlaceOf(*bitmap, x, y);
    if (!place) {
        return false;
    }
    PutColour(bitmap->Bits() + *place, colour, bitmap->Format());
    return true;
}

void CopyForScreen(const Bitmap* bitmap, int y, std::uint8_t* out) {
    const auto row = bitmap->ScanLine(y);
    if (bitmap->Format() == PixelFormat::Bgr8) {
        std::ranges::copy(row, out);
        return;
    }
    const std::uint8_t* pixel = row.data();
    const ByteCoding coding(*bitmap);
    for (int x = 0; x < bitmap->Size().width; ++x, pixel += PixelStep(bitmap->Format()), out += 3) {
        PutColour(out, coding.ColourAt(pixel), PixelFormat::Bgr8);
    }
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
