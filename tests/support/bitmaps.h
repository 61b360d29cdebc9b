// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Small pictures for tests. Rows count from the bottom.
#pragma once

#include <algorithm>
#include <functional>

#include "remap/bitmap.h"
#include "remap/pixel_access.h"

namespace varnel::testing {

// Every pixel by its column and row.
inline BitmapHandle Painted(PixelSize size, const std::function<RGBQUAD(int, int)>& colour) {
    BitmapHandle bitmap = NewBitmap(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            SetPixelColor(bitmap.get(), x, y, colour(x, y));
        }
    }
    return bitmap;
}

// A picture whose pixels tell where they are: blue is the column, green the row (both modulo 256),
// red is 7 everywhere and so never black.
inline BitmapHandle PositionPicture(PixelSize size) {
    return Painted(size, [](int x, int y) {
        return RGBQUAD{static_cast<BYTE>(x % 256), static_cast<BYTE>(y % 256), 7, 0};
    });
}

inline RGBQUAD PixelAt(FIBITMAP* bitmap, int x, int y) {
    RGBQUAD colour{1, 2, 3, 4};
    GetPixelColor(bitmap, x, y, colour);
    return colour;
}

inline bool operator==(const RGBQUAD& a, const RGBQUAD& b) {
    return a.rgbBlue == b.rgbBlue && a.rgbGreen == b.rgbGreen && a.rgbRed == b.rgbRed;
}

inline bool SamePixels(FIBITMAP* one, FIBITMAP* other) {
    bool same = one != nullptr && other != nullptr && SizeOf(one).height == SizeOf(other).height;
    for (int y = 0; same && y < SizeOf(one).height; ++y) {
        same = std::ranges::equal(ScanLine(one, y), ScanLine(other, y));
    }
    return same;
}

inline bool IsBlack(FIBITMAP* bitmap, int x, int y) {
    return PixelAt(bitmap, x, y) == black;
}

}  // namespace varnel::testing
