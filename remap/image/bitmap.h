// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures in memory. Rows count from the bottom row upward, columns from the left; colours are
// blue, green, red.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "base/pixel_size.h"
#include "remap/image/bitmap_metadata.h"
#include "remap/image/pixel_format.h"

namespace varnel {

// Pixels and what belongs to them. Several may share their pixels. Throws nothing.
class Bitmap {
  public:
    // Rows RowPitch apart, the bottom one first. The pixels are let go with the last bitmap of
    // theirs.
    Bitmap(PixelFormat format, PixelSize size, std::shared_ptr<std::byte> pixels)
        : Bitmap(format, size, std::move(pixels),
                 static_cast<std::ptrdiff_t>(RowPitch(size.width, format))) {}
    // Rows that lie otherwise, as others have them: pixels is the bottom one, and so many bytes
    // after it, or with a negative number before it, is the one above.
    Bitmap(PixelFormat format, PixelSize size, std::shared_ptr<std::byte> pixels,
           std::ptrdiff_t pitch)
        : format_(format), size_(size), pixels_(std::move(pixels)), pitch_(pitch) {}

    PixelFormat Format() const { return format_; }
    PixelSize Size() const { return size_; }
    // Bytes from row to row: RowPitch, unless the rows are another's.
    std::ptrdiff_t Pitch() const { return pitch_; }
    // The first byte of the bottom row.
    std::uint8_t* Bits() { return reinterpret_cast<std::uint8_t*>(pixels_.get()); }
    const std::uint8_t* Bits() const {
        return reinterpret_cast<const std::uint8_t*>(pixels_.get());
    }
    // Row y, counted from the bottom, without the bytes that fill it up to the next.
    std::span<std::uint8_t> ScanLine(int y) { return {Bits() + Offset(y), RowBytes()}; }
    std::span<const std::uint8_t> ScanLine(int y) const { return {Bits() + Offset(y), RowBytes()}; }
    const std::shared_ptr<std::byte>& SharedPixels() const { return pixels_; }

    BitmapMetadata metadata;

  private:
    std::ptrdiff_t Offset(int y) const { return std::ptrdiff_t{y} * pitch_; }
    std::size_t RowBytes() const {
        return static_cast<std::size_t>(size_.width) * BytesPerPixel(format_);
    }

    PixelFormat format_;
    PixelSize size_;
    std::shared_ptr<std::byte> pixels_;
    std::ptrdiff_t pitch_;
};

using BitmapHandle = std::unique_ptr<Bitmap>;

// The three pictures at hand. Each is unloaded before it is replaced.
struct Bitmaps {
    BitmapHandle FullSourceBitmap;     // the current photo at full size
    BitmapHandle PreviewSourceBitmap;  // the same at preview size, 8 bits
    BitmapHandle ResultBitmap;         // the last conversion
};

// A new black bitmap. Throws std::bad_alloc when there is no memory for it.
BitmapHandle NewBitmap(PixelSize size, PixelFormat format = PixelFormat::Bgr8);
// A bitmap over rows that lie somewhere, bottom row first and RowPitch apart; they have
// to outlive it. Empty without rows. Throws std::bad_alloc.
BitmapHandle BitmapOver(std::byte* rows, PixelSize size, PixelFormat format = PixelFormat::Bgr8);
// A copy with pixels and metadata. Throws std::bad_alloc.
BitmapHandle CloneBitmap(const Bitmap* bitmap);

// Takes away whatever the bitmap has of the photo's metadata; colour profile, resolution and
// settings stay. Throws nothing.
void DropMetadata(Bitmap* bitmap);

inline PixelSize SizeOf(const Bitmap* bitmap) {
    return bitmap->Size();
}

// Row y of a bitmap, counted from the bottom.
inline std::span<std::uint8_t> ScanLine(Bitmap* bitmap, int y) {
    return bitmap->ScanLine(y);
}
inline std::span<const std::uint8_t> ScanLine(const Bitmap* bitmap, int y) {
    return bitmap->ScanLine(y);
}

}  // namespace varnel
