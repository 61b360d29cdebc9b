// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Small pictures for tests. Rows count from the bottom.
#pragma once

#include <QByteArray>
#include <algorithm>
#include <functional>
#include <random>

#include "remap/image/freeimage_bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel::testing {

// Every pixel by its column and row.
inline BitmapHandle Painted(PixelSize size, const std::function<PixelColor(int, int)>& colour) {
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
        return PixelColor{static_cast<BYTE>(x % 256), static_cast<BYTE>(y % 256), 7, 0};
    });
}

// Every byte by chance, the same each time.
inline BitmapHandle Noise(PixelSize size) {
    std::mt19937 random(7);
    return Painted(size, [&](int, int) {
        const auto level = [&] { return static_cast<BYTE>(random()); };
        return PixelColor{level(), level(), level(), 0};
    });
}

// A slope with the grain of a sensor, like a photo.
inline BitmapHandle Grainy(PixelSize size) {
    BitmapHandle bitmap = NewBitmap(size);
    std::minstd_rand random(3);
    for (int y = 0; y < size.height; ++y) {
        const std::span<std::uint8_t> row = ScanLine(bitmap.get(), y);
        for (std::size_t x = 0; x < row.size(); ++x) {
            const auto grain = random() >> 8;
            row[x] = static_cast<std::uint8_t>(x / 9 * (1 + x % 3) + static_cast<unsigned>(y) / 5 +
                                               grain % 4 + grain / 4 % 4);
        }
    }
    return bitmap;
}

inline PixelColor PixelAt(const Bitmap* bitmap, int x, int y) {
    PixelColor colour{1, 2, 3, 4};
    GetPixelColor(bitmap, x, y, colour);
    return colour;
}

inline bool operator==(const PixelColor& a, const PixelColor& b) {
    return a.blue == b.blue && a.green == b.green && a.red == b.red;
}

inline bool SamePixels(const Bitmap* one, const Bitmap* other) {
    bool same = one != nullptr && other != nullptr && SizeOf(one).height == SizeOf(other).height;
    for (int y = 0; same && y < SizeOf(one).height; ++y) {
        same = std::ranges::equal(ScanLine(one, y), ScanLine(other, y));
    }
    return same;
}

// All rows' bytes, one after the other from the bottom; none of no picture.
inline QByteArray PixelBytes(const Bitmap* bitmap) {
    QByteArray bytes;
    for (int y = 0; bitmap != nullptr && y < SizeOf(bitmap).height; ++y) {
        const auto row = ScanLine(bitmap, y);
        bytes.append(reinterpret_cast<const char*>(row.data()), std::ssize(row));
    }
    return bytes;
}

// A copy of a library's picture, made one of 24 bits.
inline BitmapHandle In24Bits(FIBITMAP* bitmap) {
    BitmapHandle copy = TakeOver(LibraryBitmap(FreeImage_ConvertTo24Bits(bitmap)));
    copy->metadata = LibraryMetadata(bitmap);
    return copy;
}

// A copy as the library's.
inline LibraryBitmap InLibrary(const Bitmap& bitmap) {
    return LibraryBitmap(FreeImage_Clone(LibraryView(bitmap).get()));
}

// The picture that a file holds, as the library reads it; none when it refuses.
inline BitmapHandle FromFile(FREE_IMAGE_FORMAT format, QByteArray file, int flags = 0) {
    FIMEMORY* const memory =
        FreeImage_OpenMemory(reinterpret_cast<BYTE*>(file.data()), static_cast<DWORD>(file.size()));
    const LibraryBitmap bitmap(FreeImage_LoadFromMemory(format, memory, flags));
    FreeImage_CloseMemory(memory);
    return bitmap ? In24Bits(bitmap.get()) : nullptr;
}

inline bool IsBlack(const Bitmap* bitmap, int x, int y) {
    return PixelAt(bitmap, x, y) == black;
}

}  // namespace varnel::testing
