// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Thin wrappers over the image library's calls for single pixels, metadata and files. Each answers
// true exactly when the library reports success. Rows count from the bottom row.
#pragma once

#include <QString>

#include "remap/image/bitmap.h"

namespace varnel {

// The colour that reads off the source give: all four bytes 0.
inline constexpr RGBQUAD black{};

// False when (x, y) lies outside the bitmap; the colour is then left as it was.
bool GetPixelColor(FIBITMAP* bitmap, std::int32_t x, std::int32_t y, RGBQUAD& colour);

// False when (x, y) lies outside the bitmap; nothing is written then.
bool SetPixelColor(FIBITMAP* bitmap, std::int32_t x, std::int32_t y, const RGBQUAD& colour);

// Copies the source's metadata to the destination.
bool CloneMetadata(FIBITMAP* destination, FIBITMAP* source);

// A library-owned, zero-terminated text; an empty or null pointer gives an empty text.
QString LibraryText(const char* text);

}  // namespace varnel
