// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A photo's EXIF block with what the picture that is written has of its own.
#pragma once

#include <QByteArray>

#include "remap/image/bitmap.h"

namespace varnel {

// With the bitmap's width and height and, where the block has room for one, a thumbnail of it, or
// the given one of a bitmap whose pixels are not there. One that does not fit is left out: its
// length is 0 then. The bitmap has 24 bits. Throws std::bad_alloc.
QByteArray WrittenExif(const ExifBlock& block, const Bitmap* bitmap,
                       const Bitmap* thumbnail = nullptr);

// With width and height, and without a thumbnail.
QByteArray WrittenExifWithoutThumbnail(const ExifBlock& block, PixelSize size);

}  // namespace varnel
