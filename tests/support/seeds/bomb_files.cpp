// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/bomb_files.h"

#include <algorithm>

#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

namespace {

// Where a seed says its size: so many bytes after a mark (or after the file's beginning), width and
// height or height and width. A seed may say it in two places.
struct SizePlace {
    const char* seed;
    QByteArray mark;
    int after;
    int bytes;  // of one number; 0: text
    Order order = Order::Big;
    bool both = true;
};

const SizePlace sizePlaces[] = {
    {"jpeg/baseline", "\xff\xc0", 5, 2},
    {"jpeg/progressive", "\xff\xc2", 5, 2},
    {"png/colour2-8", "IHDR", 4, 4},
    {"png/colour3-8", "IHDR", 4, 4},
    {"png/colour6-16-interlaced", "IHDR", 4, 4},
    {"bmp/24", "BM", 18, 4, Order::Little},
    {"bmp/rle8", "BM", 18, 4, Order::Little},
    {"bmp/v5-24", "BM", 18, 4, Order::Little},
    {"gif/plain", {}, 6, 2, Order::Little},
    {"gif/plain", QByteArray("\x2c\0\0\0\0", 5), 5, 2, Order::Little},
    {"tiff/big-endian", QByteArray("\1\0\0\3\0\0\0\1", 8), 8, 2, Order::Big, false},
    {"tiff/tiles", QByteArray("\0\1\3\0\1\0\0\0", 8), 8, 2, Order::Little, false},
    {"dng/mosaic-16", QByteArray("\0\1\3\0\1\0\0\0", 8), 8, 2, Order::Little, false},
    {"psd/large-document", "8BPS", 14, 4},
    {"tga/24", {}, 12, 2, Order::Little},
    {"exr/none", QByteArray("dataWindow\0box2i\0", 17), 29, 4, Order::Little},
    {"hdr/plain", "-Y ", 3, 0},
    {"ras/24", {}, 4, 4},
    {"sgi/plain", {}, 6, 2},
    {"pcx/24", {}, 8, 2, Order::Little},
    {"dds/24", "DDS ", 12, 4, Order::Little},
    {"iff/8", "BMHD", 8, 2},
    {"pnm/raw-24", {}, 3, 0},
    {"j2k/grey", "\xff\x51", 6, 4},
    {"j2k/grey", "\xff\x51", 22, 4},  // its only tile
};

QByteArray Declaring(QByteArray file, const SizePlace& place, int side) {
    const qsizetype start = std::max<qsizetype>(file.indexOf(place.mark), 0) + place.after;
    if (place.bytes == 0) {
        const auto first = file.indexOf("43", start) < file.indexOf("61", start) ? 43 : 61;
        const auto text = QByteArray::number(side);
        return file.replace(file.indexOf(QByteArray::number(first), start), 2, text)
            .replace(file.indexOf(QByteArray::number(61 + 43 - first), start), 2, text);
    }
    file.replace(start, place.bytes, Number(side, place.bytes, place.order));
    // The height: right behind, or in the next entry of a directory.
    const qsizetype next = start + (place.both ? place.bytes : 12);
    return file.replace(next, place.bytes, Number(side, place.bytes, place.order));
}

// A zlib stream of zeros: one of them and runs of 258 in the fixed code.
QByteArray ZlibZeros(std::int64_t count) {
    QByteArray stream("\x78\x01", 2);
    std::uint32_t bits = 0;
    int held = 0;
    const auto put = [&](std::uint32_t code, int length) {  // the first bit lowest
        bits |= code << held;
        for (held += length; held >= 8; held -= 8, bits >>= 8) {
            stream.append(static_cast<char>(bits & 0xff));
        }
    };
    put(0b011, 3);  // the last block, fixed code
    put(0b00001100, 8);
    std::int64_t left = count - 1;
    for (; left >= 258; left -= 258) {
        put(0b10100011, 8);
        put(0, 5);  // one byte back
    }
    for (; left > 0; --left) {
        put(0b00001100, 8);
    }
    put(0, 7 + 7);  // the end, and the rest of its byte
    return stream + Number(count % 65521, 2, Order::Big) + Number(1, 2, Order::Big);
}

// Sound to its last byte: black and white.
QByteArray SoundPng(int side) {
    return "\x89PNG\r\n\x1a\n" +
           PngChunk("IHDR", Numbers({side, side}, 4, Order::Big) + Numbers({1, 0, 0, 0, 0}, 1)) +
           PngChunk("IDAT", ZlibZeros(std::int64_t{side} * ((side + 7) / 8 + 1))) +
           PngChunk("IEND", {});
}

}  // namespace

std::vector<BombFile> BombFiles(int side) {
    std::vector<BombFile> bombs = {{"png/sound", SoundPng(side)}};
    for (const SizePlace& place : sizePlaces) {
        if (bombs.back().name != place.seed) {
            bombs.push_back({place.seed, Seed(place.seed)});
        }
        QByteArray& file = bombs.back().bytes;
        file = Declaring(file, place, side);
        if (file.startsWith("\x89PNG")) {
            file.replace(29, 4, Number(PngChecksum(file.mid(12, 17)), 4, Order::Big));
        }
    }
    return bombs;
}

}  // namespace varnel::testing
