// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/bitmap.h"

#include <new>

namespace varnel {

namespace {

BitmapHandle Owned(FIBITMAP* bitmap) {
    if (bitmap == nullptr) {
        throw std::bad_alloc();
    }
    return BitmapHandle(bitmap);
}

}  // namespace

BitmapHandle NewBitmap(PixelSize size) {
    return Owned(FreeImage_Allocate(size.width, size.height, 24));
}

BitmapHandle CloneBitmap(FIBITMAP* bitmap) {
    return Owned(FreeImage_Clone(bitmap));
}

PixelSize SizeOf(FIBITMAP* bitmap) {
    return {static_cast<std::int32_t>(FreeImage_GetWidth(bitmap)),
            static_cast<std::int32_t>(FreeImage_GetHeight(bitmap))};
}

std::span<std::uint8_t> ScanLine(FIBITMAP* bitmap, int y) {
    return {FreeImage_GetScanLine(bitmap, y), FreeImage_GetLine(bitmap)};
}

}  // namespace varnel
