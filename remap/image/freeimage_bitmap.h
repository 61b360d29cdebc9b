// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Between pictures of ours and those of the image library. Only what reads and writes with the
// library needs this.
#pragma once

#include <FreeImage.h>

#include "remap/image/bitmap.h"

namespace varnel {

struct LibraryUnloader {
    void operator()(FIBITMAP* bitmap) const { FreeImage_Unload(bitmap); }
};
using LibraryBitmap = std::unique_ptr<FIBITMAP, LibraryUnloader>;

PixelSize SizeOf(FIBITMAP* bitmap);

// The bitmap as the library sees it: the same pixels where they lie, with resolution, colour
// profile and comments. The bitmap has to outlive it. Throws std::bad_alloc.
LibraryBitmap LibraryView(const Bitmap& bitmap);

// What of the library's metadata belongs to a bitmap: resolution, colour profile and comments.
BitmapMetadata LibraryMetadata(FIBITMAP* bitmap);

// Takes over a picture of 24 bits with that; its pixels stay where they are. Throws std::bad_alloc.
BitmapHandle TakeOver(LibraryBitmap bitmap);

}  // namespace varnel
