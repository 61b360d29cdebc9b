// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Ordinary JPEG photos, decoded without the image library: nearly all photos are such, and a
// process that reads no others starts in a fraction of the time. Throws std::bad_alloc.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>

#include "decoder/formats/picture_file.h"
#include "decoder/request/loaded_picture.h"
#include "decoder/request/read_request.h"
#include "decoder/request/row_pieces.h"
#include "remap/image/library_messages.h"

namespace varnel {

// By its first bytes.
bool IsJpeg(const PictureFile& file);

// As DecodePicture does, which leaves such photos to this: whole or only the size, from an open
// file, position anywhere; the messages are collected meanwhile. Nothing, without a message, for
// files of other types, quick small pictures, and kinds of JPEG that ReadJpegPixels leaves to the
// image library. What goes in pieces has a bitmap without pixels for its answer.
std::optional<LoadedPicture> DecodeOrdinaryJpeg(std::FILE* file, const ReadRequest& request,
                                                std::uint64_t memory, const PixelPlace& place,
                                                const LibraryMessages& messages);

}  // namespace varnel
