// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Decoding an ordinary JPEG photo straight to where its pixels are wanted.
#pragma once

#include <cstdio>
#include <optional>

#include "decoder/request/row_pieces.h"
#include "remap/image/bitmap_metadata.h"
#include "remap/image/exif_orientation.h"

namespace varnel {

// Decodes a JPEG of 8 bits in grey or colour with red, green and blue to rows of 24 bits, turned by
// the orientation: else the same pixels as the library's, decoded accurately. Its messages come as
// from the library. Returns comments, colour profile and resolution as the library reads them. The
// file is the caller's, its position anywhere; the expected size is that of the picture as it is
// stored. Nothing, with any pixels and no message, when the
// photo is to be left to the library: it is of another kind or size, or an error ends its decoding.
// Throws std::bad_alloc.
std::optional<BitmapMetadata> ReadJpegPixels(std::FILE* file, PixelSize expected, PixelRows rows,
                                             int orientation = 1);

enum class PiecesEnd {
    NotBegun,  // to be left to the library, without any message
    Whole,
    Broken  // an error ended the decoding, or the taker is gone
};

// The same piece by piece, as it is stored: the orientation is only told.
PiecesEnd ReadJpegPieces(std::FILE* file, PixelSize expected, int orientation, RowPieces& pieces);

}  // namespace varnel
