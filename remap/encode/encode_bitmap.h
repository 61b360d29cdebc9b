// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Turning a bitmap into the bytes of a file, in memory.
#pragma once

#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/output_type.h"
#include "remap/image/bitmap.h"

namespace varnel {

// The picture has the samples that the encoding's depth says, as far as the type holds them.
// Metadata or a colour profile that the type's encoder refuses do not cost the picture: it is
// encoded without. Throws what the runner throws.
EncodedBitmap EncodeBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                           const EncodeOptions& options = {});

// Whether a picture is large enough for its file to be made piece by piece.
bool IsWorthPieces(PixelSize size);

// Whether a picture of that format is encoded from rows that come and go (EncodeOptions::rows), and
// is large enough for that.
bool IsEncodedByRows(const OutputEncoding& encoding, PixelFormat format, PixelSize size);

}  // namespace varnel
