// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/file_bytes.h"
#include "tests/support/seed_files.h"

namespace varnel::testing {

namespace {

constexpr int width = seedSize.width;
constexpr int height = seedSize.height;

struct BmpKind {
    const char* name;
    int header;  // bytes; 12 and 64 are OS/2's
    int bits;
    int compression = 0;  // 1 and 2: run lengths, 3: masks
    bool topDown = false;
    bool lastLineEnds = true;  // run lengths: an end-of-line also after the last row
};

constexpr BmpKind bmpKinds[] = {
    {"1", 40, 1},
    {"4", 40, 4},
    {"8", 40, 8},
    {"16", 40, 16},
    {"24", 40, 24},
    {"32", 40, 32},
    {"top-down-8", 40, 8, 0, true},
    {"top-down-24", 40, 24, 0, true},
    {"rle8", 40, 8, 1},
    {"rle8-no-last-end", 40, 8, 1, false, false},
    {"rle4", 40, 4, 2},
    {"rle4-no-last-end", 40, 4, 2, false, false},
    {"masks-16", 40, 16, 3},
    {"masks-32", 40, 32, 3},
    {"os2-1", 12, 1},
    {"os2-4", 12, 4},
    {"os2-8", 12, 8},
    {"os2-24", 12, 24},
    {"v4-8", 108, 8},
    {"v4-24", 108, 24},
    {"v4-masks-32", 108, 32, 3},
    {"v5-4", 124, 4},
    {"v5-24", 124, 24},
    {"v5-masks-32", 124, 32, 3},
    {"v5-rle8", 124, 8, 1},
};

// Each row: four bytes as they are, one run, the end of the line; at last the end of the picture.
QByteArray BmpRuns(const BmpKind& kind) {
    const int asTheyAre = 4 * 8 / kind.bits;
    QByteArray rows;
    for (int y = 0; y < height; ++y) {
        rows += Numbers({0, asTheyAre, 1, 2, 3, 4, width - asTheyAre, y % 16 * 17}, 1);
        rows += y + 1 < height || kind.lastLineEnds ? Number(0, 2) : QByteArray();
    }
    return rows + Number(0x0100, 2);
}

QByteArray BmpInfo(const BmpKind& kind, int pixelBytes) {
    if (kind.header == 12) {
        return Number(12, 4) + Numbers({width, height, 1, kind.bits}, 2);
    }
    QByteArray info = Numbers({kind.header, width, kind.topDown ? -height : height}, 4) +
                      Numbers({1, kind.bits}, 2) +
                      Numbers({kind.compression, pixelBytes, 2835, 2835, 0, 0}, 4);
    if (kind.compression == 3) {
        info += kind.bits == 16 ? Numbers({0xf800, 0x07e0, 0x001f}, 4)
                                : Numbers({0xff0000, 0x00ff00, 0x0000ff}, 4);
    }
    if (kind.header > 64) {
        info = info.leftJustified(56, '\0') + Number(0x73524742, 4);  // the colour space: "sRGB"
        info = info.leftJustified(kind.header, '\0');
    }
    return info;
}

SeedFile Bmp(const BmpKind& kind) {
    const QByteArray pixels = kind.compression == 1 || kind.compression == 2
                                  ? BmpRuns(kind)
                                  : PatternBytes((width * kind.bits + 31) / 32 * 4 * height);
    const int entry = kind.header == 12 ? 3 : 4;
    const QByteArray palette = kind.bits <= 8 ? PatternBytes((1 << kind.bits) * entry) : "";
    const QByteArray info = BmpInfo(kind, static_cast<int>(pixels.size()));
    const auto offset = 14 + info.size() + palette.size();
    return {std::string("bmp/") + kind.name,
            "BM" + Numbers({offset + pixels.size(), 0, offset}, 4) + info + palette + pixels,
            seedSize};
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

std::vector<SeedFile> BmpSeeds() {
    std::vector<SeedFile> seeds;
    for (const BmpKind& kind : bmpKinds) {
        seeds.push_back(Bmp(kind));
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
