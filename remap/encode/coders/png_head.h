// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a PNG file has besides the chunks of its pixels. Numbers are big-endian.
#pragma once

#include <QByteArray>

#include "base/reason.h"
#include "remap/encode/metadata_writer.h"
#include "remap/image/bitmap.h"

namespace varnel {

struct PngHead {
    QByteArray bytes;  // up to the first chunk of pixels
    Reason error;      // why libpng refuses to write it; empty when it does not
};

// Of a file for the bitmap, as libpng writes it: size, resolution, colour profile, comments and the
// metadata. Throws std::bad_alloc.
PngHead PngHeadFor(const Bitmap& bitmap, const WrittenMetadata& metadata);

inline constexpr qsizetype pngChunkStart = 8;  // bytes before a chunk's data: length and type
inline constexpr qsizetype pngChunkEnd = 4;    // bytes after it: the checksum

// Writes length, type and checksum around the data of a chunk, for which there must be room.
// type is four letters. Throws nothing.
void SealPngChunk(char* chunk, qsizetype dataLength, const char* type);

}  // namespace varnel
