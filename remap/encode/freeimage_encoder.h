// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bytes of a file as the image library makes them.
#pragma once

#include <FreeImage.h>

#include <QByteArray>

#include "base/reason.h"
#include "remap/image/bitmap.h"

namespace varnel {

// BMP and TIFF count the bytes of a file in 32 bits.
inline constexpr qint64 largestFile = 0xFFFFFFFF;

// No bytes and the reason when it could not be done.
struct EncodedBitmap {
    QByteArray bytes;
    Reason reason;
    Reason note = {};  // what the file is without, and why; empty when it has everything
};

// flags are the library's for the format. The library's own file in memory is not used: from 2 GB
// on it drops what is written, and the library calls the rest a success.
EncodedBitmap LibraryFile(FREE_IMAGE_FORMAT format, const Bitmap* bitmap, int flags,
                          qint64 largest = largestFile);
EncodedBitmap LibraryFile(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                          qint64 largest = largestFile);

// A black picture of 8 x 8 pixels with the bitmap's metadata, colour profile and resolution: its
// library file shows how the library writes them. Throws std::bad_alloc.
BitmapHandle MetadataSample(const Bitmap* bitmap);

}  // namespace varnel
