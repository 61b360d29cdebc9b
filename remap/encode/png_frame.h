// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The chunks of a PNG file around its pixels. Numbers are big-endian.
#pragma once

#include <QByteArray>
#include <optional>

#include "base/pixel_size.h"

namespace varnel {

// What stands before and after the pixels' chunks.
struct PngFrame {
    QByteArray head;
    QByteArray tail;
};

// The frame of the file, which holds an 8-bit RGB picture, for a picture of another size. None when
// there is anything in the file that is not expected there.
std::optional<PngFrame> PngFrameOf(const QByteArray& file, PixelSize size);

inline constexpr qsizetype pngChunkStart = 8;  // bytes before a chunk's data: length and type
inline constexpr qsizetype pngChunkEnd = 4;    // bytes after it: the checksum

// Writes length, type and checksum around the data of a chunk, for which there must be room.
// type is four letters.
void SealPngChunk(char* chunk, qsizetype dataLength, const char* type);

}  // namespace varnel
