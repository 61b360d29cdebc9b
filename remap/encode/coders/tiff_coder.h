// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TIFF files coded on all cores, in strips of differences of neighbouring pixels.
#pragma once

#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/output_type.h"
#include "remap/image/bitmap.h"

namespace varnel {

// With resolution, colour profile and metadata; bitmaps of all formats, coded as the encoding's
// compression says. The directory is libtiff's.
// Equal bytes whatever the runner. Throws std::bad_alloc.
EncodedBitmap EncodeTiff(const Bitmap* bitmap, const OutputEncoding& encoding,
                         const EncodeOptions& options);

}  // namespace varnel
