// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// OpenEXR files by the image library.
#pragma once

#include "remap/encode/coders/encoded_bitmap.h"

namespace varnel {

// The samples as they are, in single precision and packed without loss; a bitmap of floating point.
// Throws std::bad_alloc.
EncodedBitmap EncodeExr(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options);

}  // namespace varnel
