// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing PNG on all cores.
#pragma once

#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/output_type.h"
#include "remap/image/bitmap.h"

namespace varnel {

// With resolution, comments, colour profile and metadata; a bitmap of 8 or
// 16 bits a sample. What stands in front of the pixels is libpng's; the pixels are filtered and
// compressed here, because libpng does that on one core. The same bytes whatever the runner. Throws
// std::bad_alloc.
EncodedBitmap EncodePng(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options);

}  // namespace varnel
