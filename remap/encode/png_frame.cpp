// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/png_frame.h"

#include <zlib.h>
#include <QtEndian>
#include <cstring>

namespace varnel {

namespace {

constexpr char signature[] = "\x89PNG\r\n\x1a\n";
constexpr qsizetype signatureLength = 8;
constexpr qsizetype headerLength = 13;
// Of the header, after width and height: 8 bits a sample, RGB, and the only values of compression
// and filter; not interlaced.
constexpr char kindOfPicture[] = "\x08\x02\x00\x00\x00";

struct Chunk {
    qsizetype start = 0;
    qsizetype end = 0;
    QByteArray type;
};

// The chunk that starts there, if it is whole.
std::optional<Chunk> ChunkAt(const QByteArray& file, qsizetype start) {
    constexpr qsizetype around = pngChunkStart + pngChunkEnd;
    if (start > file.size() - around) {
        return std::nullopt;
    }
    const auto length = qFromBigEndian<quint32>(file.constData() + start);
    if (length > file.size() - start - around) {
        return std::nullopt;
    }
    return Chunk{start, start + around + length, file.mid(start + 4, 4)};
}

// A lower-case first letter: of use to readers, but not needed for the pixels.
bool IsAncillary(const Chunk& chunk) {
    return chunk.type[0] >= 'a' && chunk.type[0] <= 'z';
}

bool IsTrueColourHeader(const QByteArray& file, const Chunk& chunk) {
    const qsizetype sizes = chunk.start + pngChunkStart;
    return chunk.type == "IHDR" && chunk.end - chunk.start == headerLength + 12 &&
           std::memcmp(file.constData() + sizes + 8, kindOfPicture, 5) == 0;
}

}  // namespace

std::optional<PngFrame> PngFrameOf(const QByteArray& file, PixelSize size) {
    const std::optional<Chunk> header = ChunkAt(file, signatureLength);
    if (!file.startsWith(signature) || !header || !IsTrueColourHeader(file, *header)) {
        return std::nullopt;
    }
    PngFrame frame{file.left(header->end), {}};
    char* const chunk = frame.head.data() + header->start;
    qToBigEndian<qint32>(size.width, chunk + pngChunkStart);
    qToBigEndian<qint32>(size.height, chunk + pngChunkStart + 4);
    SealPngChunk(chunk, headerLength, "IHDR");
    bool hasPixels = false;
    for (std::optional<Chunk> next = ChunkAt(file, header->end); next;
         next = ChunkAt(file, next->end)) {
        const QByteArray bytes = file.mid(next->start, next->end - next->start);
        if (next->type == "IEND") {
            frame.tail += bytes;
            return hasPixels && next->end == file.size() ? std::optional(frame) : std::nullopt;
        }
        if (next->type == "IDAT" && frame.tail.isEmpty()) {
            hasPixels = true;
        } else if (IsAncillary(*next)) {
            (hasPixels ? frame.tail : frame.head) += bytes;
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

void SealPngChunk(char* chunk, qsizetype dataLength, const char* type) {
    qToBigEndian<quint32>(static_cast<quint32>(dataLength), chunk);
    std::memcpy(chunk + 4, type, 4);
    const auto* const summed = reinterpret_cast<const Bytef*>(chunk + 4);
    const uLong sum = crc32(crc32(0, nullptr, 0), summed, static_cast<uInt>(4 + dataLength));
    qToBigEndian<quint32>(static_cast<quint32>(sum), chunk + pngChunkStart + dataLength);
}

}  // namespace varnel
