// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/bitmap.h"

#include <new>
#include <utility>

#include "base/huge_pages.h"
#include "remap/image/row_pitch.h"

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
    if (auto pages = LargePages(RowPitch(size.width) * static_cast<std::size_t>(size.height))) {
        BitmapHandle bitmap = BitmapOver(pages.get(), size);
        bitmap.get_deleter().pixels = std::move(pages);
        return bitmap ? std::move(bitmap) : throw std::bad_alloc();
    }
    return Owned(FreeImage_Allocate(size.width, size.height, 24));
}

BitmapHandle BitmapOver(std::byte* rows, PixelSize size) {
    return BitmapHandle(rows == nullptr
                            ? nullptr
                            : FreeImage_ConvertFromRawBitsEx(
                                  FALSE, reinterpret_cast<BYTE*>(rows), FIT_BITMAP, size.width,
                                  size.height, static_cast<int>(RowPitch(size.width)), 24,
                                  FI_RGBA_RED_MASK, FI_RGBA_GREEN_MASK, FI_RGBA_BLUE_MASK, FALSE));
}

BitmapHandle CloneBitmap(FIBITMAP* bitmap) {
    return Owned(FreeImage_Clone(bitmap));
}

void CopyAllButPixels(FIBITMAP* bitmap, FIBITMAP* source) {
    for (int model = FIMD_COMMENTS; model <= FIMD_EXIF_RAW; ++model) {
        FreeImage_SetMetadata(static_cast<FREE_IMAGE_MDMODEL>(model), bitmap, nullptr, nullptr);
    }
    FreeImage_CloneMetadata(bitmap, source);
    FreeImage_SetDotsPerMeterX(bitmap, FreeImage_GetDotsPerMeterX(source));
    FreeImage_SetDotsPerMeterY(bitmap, FreeImage_GetDotsPerMeterY(source));
    FreeImage_SetThumbnail(bitmap, FreeImage_GetThumbnail(source));
    FreeImage_DestroyICCProfile(bitmap);
    const FIICCPROFILE* const profile = FreeImage_GetICCProfile(source);
    if (profile->data != nullptr && profile->size > 0) {
        FreeImage_CreateICCProfile(bitmap, profile->data, static_cast<long>(profile->size))->flags =
            profile->flags;
    }
}

PixelSize SizeOf(FIBITMAP* bitmap) {
    return {static_cast<std::int32_t>(FreeImage_GetWidth(bitmap)),
            static_cast<std::int32_t>(FreeImage_GetHeight(bitmap))};
}

std::span<std::uint8_t> ScanLine(FIBITMAP* bitmap, int y) {
    return {FreeImage_GetScanLine(bitmap, y), FreeImage_GetLine(bitmap)};
}

}  // namespace varnel
