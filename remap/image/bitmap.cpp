// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/bitmap.h"

#include <cstring>
#include <new>

#include "base/huge_pages.h"

namespace varnel {

namespace {

constexpr std::align_val_t alignment{64};  // bytes: a line of the cache

std::size_t BytesFor(PixelSize size, PixelFormat format) {
    return RowPitch(size.width, format) * static_cast<std::size_t>(size.height);
}

// Zero bytes. Throws std::bad_alloc.
std::shared_ptr<std::byte> NewPixels(std::size_t length) {
    if (auto pages = LargePages(length)) {
        return pages;
    }
    auto* const bytes = static_cast<std::byte*>(::operator new(length, alignment));
    std::memset(bytes, 0, length);
    return {bytes, [](std::byte* pixels) { ::operator delete(pixels, alignment); }};
}

}  // namespace

BitmapHandle NewBitmap(PixelSize size, PixelFormat format) {
    return std::make_unique<Bitmap>(format, size, NewPixels(BytesFor(size, format)));
}

BitmapHandle BitmapOver(std::byte* rows, PixelSize size, PixelFormat format) {
    if (rows == nullptr) {
        return nullptr;
    }
    return std::make_unique<Bitmap>(format, size,
                                    std::shared_ptr<std::byte>(std::shared_ptr<void>(), rows));
}

BitmapHandle CloneBitmap(const Bitmap* bitmap) {
    BitmapHandle clone = NewBitmap(bitmap->Size(), bitmap->Format());
    std::memcpy(clone->Bits(), bitmap->Bits(), BytesFor(bitmap->Size(), bitmap->Format()));
    clone->metadata = bitmap->metadata;
    return clone;
}

void DropMetadata(Bitmap* bitmap) {
    bitmap->metadata.comments.clear();
    bitmap->metadata.photo = {};
}

}  // namespace varnel
