// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

namespace {

constexpr int width = seedSize.width;
constexpr int height = seedSize.height;

constexpr std::pair<const char*, BmpKind> bmpKinds[] = {
    {"1", {40, 1}},
    {"4", {40, 4}},
    {"8", {40, 8}},
    {"16", {40, 16}},
    {"24", {40, 24}},
    {"32", {40, 32}},
    {"top-down-8", {40, 8, 0, true}},
    {"top-down-24", {40, 24, 0, true}},
    {"rle8", {40, 8, 1}},
    {"rle8-no-last-end", {40, 8, 1, false, false}},
    {"rle4", {40, 4, 2}},
    {"rle4-no-last-end", {40, 4, 2, false, false}},
    {"masks-16", {40, 16, 3}},
    {"masks-32", {40, 32, 3}},
    {"os2-1", {12, 1}},
    {"os2-4", {12, 4}},
    {"os2-8", {12, 8}},
    {"os2-24", {12, 24}},
    {"v4-8", {108, 8}},
    {"v4-24", {108, 24}},
    {"v4-masks-32", {108, 32, 3}},
    {"v5-4", {124, 4}},
    {"v5-24", {124, 24}},
    {"v5-masks-32", {124, 32, 3}},
    {"v5-rle8", {124, 8, 1}},
};

// Four bytes as they are, then runs of one byte: one pixel or, in 4 bits, two.
QByteArray BmpRuns(const BmpKind& kind, int columns) {
    const int pixels = 8 / kind.depth;
    QByteArray row = Numbers({0, 4 * pixels}, 1);
    for (int x = 0; x < columns; x += pixels) {
        const int first = kind.Colour(x, 0).blue;
        const int byte = pixels == 1 ? first : first << 4 | kind.Colour(x + 1, 0).blue;
        row += (x < 4 * pixels ? QByteArray() : Number(std::min(pixels, columns - x), 1)) +
               Number(byte, 1);
    }
    return row;
}

QByteArray BmpRow(const BmpKind& kind, int columns, int y) {
    QByteArray row((columns * kind.depth + 31) / 32 * 4, '\0');
    for (int x = 0; x < columns; ++x) {
        const PixelColor c = kind.Colour(x, y);
        if (kind.depth > 8) {
            const int bytes = kind.depth / 8;
            row.replace(x * bytes, bytes, Numbers({c.blue, c.green, c.red, 0}, 1).first(bytes));
        } else {
            const int bit = x * kind.depth;
            row[bit / 8] = static_cast<char>(row[bit / 8] | c.blue << (8 - kind.depth - bit % 8));
        }
    }
    return row;
}

QByteArray BmpPixels(const BmpKind& kind, PixelSize size) {
    QByteArray pixels;
    for (int y = 0; y < size.height; ++y) {
        const bool last = y + 1 == size.height;
        pixels += !kind.HasRuns()
                      ? BmpRow(kind, size.width, kind.topFirst ? size.height - 1 - y : y)
                      : BmpRuns(kind, size.width) + Number(0, last && !kind.lastRowEnds ? 0 : 2);
    }
    return pixels + (kind.HasRuns() ? Number(0x0100, 2) : QByteArray());
}

QByteArray BmpHeader(const BmpKind& kind, PixelSize size, qsizetype pixelBytes) {
    if (kind.headerBytes == 12) {
        return Number(12, 4) + Numbers({size.width, size.height, 1, kind.depth}, 2);
    }
    QByteArray header =
        Numbers({kind.headerBytes, size.width, kind.topFirst ? -size.height : size.height}, 4) +
        Numbers({1, kind.depth}, 2) + Numbers({kind.coding, pixelBytes, 5000, 6000, 0, 0}, 4);
    if (kind.coding == 3 && kind.headerBytes != 64) {
        header += kind.depth == 16 ? Numbers({0xf800, 0x07e0, 0x001f}, 4)
                                   : Numbers({0xff0000, 0x00ff00, 0x0000ff}, 4);
    }
    if (kind.headerBytes > 64) {
        header = header.leftJustified(56, '\0') + Number(0x73524742, 4);  // the colours: "sRGB"
    }
    return header.leftJustified(kind.headerBytes, '\0');
}

struct PngKind {
    int bits;
    int colour;  // 0 grey, 2 colour, 3 palette, 4 grey and alpha, 6 colour and alpha
    bool interlaced = false;
};

constexpr PngKind pngKinds[] = {
    {1, 0}, {2, 0}, {4, 0}, {8, 0},  {16, 0}, {8, 2},  {16, 2},      {1, 3},       {2, 3},
    {4, 3}, {8, 3}, {8, 4}, {16, 4}, {8, 6},  {16, 6}, {8, 2, true}, {2, 3, true}, {16, 6, true}};

// The rows of one picture or pass, each with a filter byte that takes its turn.
QByteArray PngRows(int columns, int rows, int bitsPerPixel) {
    QByteArray data;
    for (int y = 0; y < rows && columns > 0; ++y) {
        data += Number(y % 5, 1) + PatternBytes((columns * bitsPerPixel + 7) / 8);
    }
    return data;
}

QByteArray PngPixels(const PngKind& kind) {
    constexpr int channels[] = {1, 0, 3, 1, 2, 0, 4};
    const int bits = kind.bits * channels[kind.colour];
    if (!kind.interlaced) {
        return PngRows(width, height, bits);
    }
    constexpr int passes[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                  {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    QByteArray data;
    for (const auto& [x, y, stepX, stepY] : passes) {
        data += PngRows((width - x + stepX - 1) / stepX, (height - y + stepY - 1) / stepY, bits);
    }
    return data;
}

SeedFile Png(const PngKind& kind, const std::string& name, const QByteArray& between = {}) {
    const QByteArray header = Numbers({width, height}, 4, Order::Big) +
                              Numbers({kind.bits, kind.colour, 0, 0, kind.interlaced}, 1);
    const QByteArray palette = kind.colour == 3 ? PngChunk("PLTE", PatternBytes(3 << kind.bits)) +
                                                      PngChunk("tRNS", PatternBytes(1 << kind.bits))
                                                : QByteArray();
    return {"png/" + name,
            "\x89PNG\r\n\x1a\n" + PngChunk("IHDR", header) + between + palette +
                PngChunk("IDAT", Zlib(PngPixels(kind))) + PngChunk("IEND", {}),
            seedSize};
}

}  // namespace

QByteArray Bmp(const BmpKind& kind, PixelSize size) {
    const QByteArray pixels = BmpPixels(kind, size);
    QByteArray header = BmpHeader(kind, size, pixels.size());
    for (int i = 0; kind.depth <= 8 && i < 1 << kind.depth; ++i) {
        const PixelColor c = kind.Colour(i, 0);
        header += Numbers({c.blue, c.green, c.red, 0}, 1).first(kind.headerBytes == 12 ? 3 : 4);
    }
    const qsizetype offset = 14 + header.size();
    return "BM" + Numbers({offset + pixels.size(), 0, offset}, 4) + header + pixels;
}

std::vector<SeedFile> BmpSeeds() {
    std::vector<SeedFile> seeds;
    for (const auto& [name, kind] : bmpKinds) {
        seeds.push_back({std::string("bmp/") + name, Bmp(kind, seedSize), seedSize});
    }
    return seeds;
}

std::vector<SeedFile> PngSeeds() {
    std::vector<SeedFile> seeds;
    for (const PngKind& kind : pngKinds) {
        seeds.push_back(Png(kind, "colour" + std::to_string(kind.colour) + "-" +
                                      std::to_string(kind.bits) +
                                      (kind.interlaced ? "-interlaced" : "")));
    }
    const QByteArray zero(1, '\0');
    seeds.push_back(Png({8, 2}, "described",
                        PngChunk("iCCP", "profile" + zero + zero + Zlib(ColourProfile())) +
                            PngChunk("pHYs", Numbers({2835, 2835}, 4, Order::Big) + Number(1, 1)) +
                            PngChunk("tEXt", "Comment" + zero + "a fish's eye") +
                            PngChunk("zTXt", "Title" + zero + zero + Zlib("fish")) +
                            PngChunk("iTXt", "XML:com.adobe.xmp" + zero.repeated(5) + XmpPacket()) +
                            PngChunk("eXIf", ExifBlock(true).mid(6))));
    return seeds;
}

}  // namespace varnel::testing
