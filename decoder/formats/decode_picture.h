// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Decoding one photo with the image libraries. They may crash, hang or throw on a damaged file, so
// this belongs into a process of its own.
#pragma once

#include <cstdint>
#include <cstdio>

#include "decoder/formats/picture_file.h"
#include "decoder/request/loaded_picture.h"
#include "decoder/request/read_request.h"
#include "decoder/request/row_pieces.h"

namespace varnel {

// Reads the photo from an open regular file (position anywhere; the request's path is not looked
// at). The type is taken from the contents, the size is looked up before any pixel is read and
// refused when it is too large for a machine with this memory in bytes. Never throws what the
// libraries throw: that becomes the reason.
// Whole: with metadata and colour profile, in 24 bits or, when that is wanted, in the file's own
// depth. JPEG is decoded accurately, raw files are developed, floating-point colour is tone-mapped
// for 24 bits and kept as it is in its own depth.
// Small: a JPEG is decoded at a fraction of its size, of a raw file the camera's own preview is
// taken; other pictures are decoded whole unless that would take long. The answer's size is 0 x 0
// when the file does not state it.
// Where it can, a whole photo is decoded right into the rows that it asks for, and the bitmap
// stands there, or in pieces, and the bitmap is without pixels; else it has memory of its own.
LoadedPicture DecodePicture(std::FILE* file, const ReadRequest& request, std::uint64_t memory,
                            const PixelPlace& place = {});

// Has the libraries open now what they would open at the first photo; from then on decoding opens
// no file. To be called before a process gives up its rights to files.
void PrepareDecoding();

}  // namespace varnel
