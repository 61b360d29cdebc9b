// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/pixel_access.h"

namespace varnel {

// The library takes unsigned positions: a negative one becomes a huge one and is refused by it.

bool GetPixelColor(FIBITMAP* bitmap, std::int32_t x, std::int32_t y, RGBQUAD& colour) {
    return FreeImage_GetPixelColor(bitmap, static_cast<unsigned>(x), static_cast<unsigned>(y),
                                   &colour) == TRUE;
}

bool SetPixelColor(FIBITMAP* bitmap, std::int32_t x, std::int32_t y, const RGBQUAD& colour) {
    RGBQUAD copy = colour;
    return FreeImage_SetPixelColor(bitmap, static_cast<unsigned>(x), static_cast<unsigned>(y),
                                   &copy) == TRUE;
}

bool CloneMetadata(FIBITMAP* destination, FIBITMAP* source) {
    return FreeImage_CloneMetadata(destination, source) == TRUE;
}

QString LibraryText(const char* text) {
    return text == nullptr ? QString() : QString::fromLocal8Bit(text);
}

}  // namespace varnel
