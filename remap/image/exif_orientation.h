// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures turned upright, pixel by pixel. Orientations are those of EXIF, named by what has to be
// done to the picture as it is stored: 1 nothing, 2 mirrored left to right, 3 turned by 180
// degrees, 4 mirrored top to bottom, 5 mirrored at the diagonal from the top left, 6 turned 90
// degrees clockwise, 7 mirrored at the other diagonal, 8 turned 90 degrees counter-clockwise.
// Throws nothing.
#pragma once

#include <cstddef>

#include "base/pixel_size.h"
#include "remap/image/pixel_format.h"

namespace varnel {

constexpr bool IsOrientation(std::int64_t number) {
    return number >= 1 && number <= 8;
}

// Whether width and height change places.
constexpr bool SwapsSides(int orientation) {
    return orientation >= 5;
}

// The size of the picture once it is turned.
constexpr PixelSize Turned(PixelSize size, int orientation) {
    return SwapsSides(orientation) ? PixelSize{size.height, size.width} : size;
}

// Rows of pixels, bottom row first.
struct PixelRows {
    std::byte* bottom = nullptr;
    std::size_t pitch = 0;  // bytes from row to row
    PixelFormat format = PixelFormat::Bgr8;
};

// Some of a picture's rows: the first of them (in source.bottom) is that row of the picture,
// counted from the bottom.
struct RowBand {
    std::int32_t first = 0;
    std::int32_t count = 0;
};

// Puts a band of a picture of that size to where its pixels belong in the turned picture, whose
// rows have to be there already in the same format, apart from the source. The orientation is 1
// to 8.
void TurnRows(PixelSize size, RowBand band, PixelRows source, int orientation, PixelRows turned);

}  // namespace varnel
