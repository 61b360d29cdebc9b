// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bytes of a file as the image library makes them. Throws nothing.
#pragma once

#include <FreeImage.h>

#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/output_type.h"
#include "remap/image/bitmap.h"

namespace varnel {

// flags are the library's for the format, largest the most bytes that the file may have; errors are
// returned. The library's own file in memory is not used: from 2 GB on it drops what is written,
// and the library calls the rest a success.
EncodedBitmap LibraryFile(FREE_IMAGE_FORMAT format, const Bitmap* bitmap, int flags,
                          qint64 largest = largestFile);
EncodedBitmap LibraryFile(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                          qint64 largest = largestFile);

// A BMP file: no other program part writes one. Throws nothing.
EncodedBitmap EncodeBmp(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options);

}  // namespace varnel
