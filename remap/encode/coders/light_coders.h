// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// OpenEXR and Radiance files, both of light, by the image library.
#pragma once

#include "remap/encode/coders/encoded_bitmap.h"

namespace varnel {

// The samples as they are, in single precision and packed without loss; a bitmap of floating point.
// Throws std::bad_alloc.
EncodedBitmap EncodeExr(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options);

// Of each pixel the three mantissas of 8 bits under one exponent that are nearest to it; light
// below 0, or none, is black. A bitmap of floating point without alpha. Throws std::bad_alloc.
EncodedBitmap EncodeHdr(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options);

}  // namespace varnel
