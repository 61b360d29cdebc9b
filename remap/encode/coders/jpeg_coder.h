// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG files, several bands of a picture at once.
#pragma once

#include <QByteArray>

#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/output_type.h"
#include "remap/image/bitmap.h"

namespace varnel {

// With resolution, comments, colour profile and metadata; a bitmap of 24 bits. The coding is
// libjpeg's, but libjpeg works on one core, so the rows are coded in bands and joined: the file of
// a large picture has restart markers and so is a few bytes larger. It does not depend on the
// runner. Throws std::bad_alloc.
EncodedBitmap EncodeJpeg(const Bitmap* bitmap, const OutputEncoding& encoding,
                         const EncodeOptions& options);

// A JPEG file of a small bitmap of 24 bits with nothing but the picture in it. Throws
// std::bad_alloc.
QByteArray PlainJpeg(const Bitmap* bitmap, int quality);

}  // namespace varnel
