// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Turning a bitmap into the bytes of a file, in memory.
#pragma once

#include "base/block_runner.h"
#include "remap/encode/freeimage_encoder.h"
#include "remap/encode/output_type.h"

namespace varnel {

struct EncodeOptions {
    BlockRunner* runner = nullptr;  // none: on the caller's thread alone
    qint64 largest = largestFile;   // bytes
};

// Metadata or a colour profile that the type's encoder refuses do not cost the picture: it is
// encoded without. Throws what the runner throws.
EncodedBitmap EncodeBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                           const EncodeOptions& options = {});

// With all that the bitmap has. flags are the library's for the format. Likewise.
EncodedBitmap EncodeAs(FREE_IMAGE_FORMAT format, const Bitmap* bitmap, int flags,
                       const EncodeOptions& options);

}  // namespace varnel
