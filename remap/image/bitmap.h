// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures in memory. Rows count from the bottom row upward, columns from the left, as the image
// library stores them; colours are blue, green, red and one reserved byte.
#pragma once

#include <FreeImage.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "base/pixel_size.h"

namespace varnel {

struct BitmapUnloader {
    // What the pixels stand in when the bitmap does not own them itself; let go after the bitmap.
    std::shared_ptr<void> pixels;
    void operator()(FIBITMAP* bitmap) {
        FreeImage_Unload(bitmap);
        pixels.reset();
    }
};
// The only owner of a bitmap; unloads it.
using BitmapHandle = std::unique_ptr<FIBITMAP, BitmapUnloader>;

// The three pictures at hand. Each is unloaded before it is replaced.
struct Bitmaps {
    BitmapHandle FullSourceBitmap;     // the current photo at full size, 24 bits
    BitmapHandle PreviewSourceBitmap;  // the same at preview size
    BitmapHandle ResultBitmap;         // the last conversion
};

// A new black 24-bit bitmap. Throws std::bad_alloc when there is no memory for it.
BitmapHandle NewBitmap(PixelSize size);
// A 24-bit bitmap over rows that lie somewhere, bottom row first and as far apart as those of a
// bitmap of its own; they have to outlive it. Empty without rows or memory.
BitmapHandle BitmapOver(std::byte* rows, PixelSize size);
// A copy with pixels, metadata and colour profile. Throws std::bad_alloc.
BitmapHandle CloneBitmap(FIBITMAP* bitmap);

// Gives the bitmap the source's metadata, colour profile, thumbnail and resolution, and takes its
// own away.
void CopyAllButPixels(FIBITMAP* bitmap, FIBITMAP* source);

PixelSize SizeOf(FIBITMAP* bitmap);

// Row y of a bitmap, counted from the bottom: 3 bytes a pixel for 24 bits.
std::span<std::uint8_t> ScanLine(FIBITMAP* bitmap, int y);

}  // namespace varnel
