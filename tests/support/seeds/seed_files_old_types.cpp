// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

namespace {

constexpr int width = seedSize.width;
constexpr int height = seedSize.height;

// Codes of 7-bit pixels are whole bytes as long as the table is cleared often enough.
QByteArray GifPixels() {
    const QByteArray pixels = PatternBytes(width * height, 127);
    QByteArray codes;
    for (int i = 0; i < pixels.size(); i += 100) {
        codes += '\x80' + pixels.mid(i, 100);
    }
    codes += '\x81';
    QByteArray blocks(1, '\7');
    for (int i = 0; i < codes.size(); i += 255) {
        const QByteArray block = codes.mid(i, 255);
        blocks += Number(block.size(), 1) + block;
    }
    return blocks + '\0';
}

// Flags: 0x40 interlaced, 0x86 a palette of its own.
QByteArray Gif(int frames, int flags, const QByteArray& extension) {
    QByteArray file = "GIF89a" + Numbers({width, height}, 2) + Numbers({0xf6, 0, 0}, 1) +
                      PatternBytes(3 * 128) + extension;
    for (int i = 0; i < frames; ++i) {
        file += Numbers({0x21, 0xf9, 4, 9, 10, 0, 3, 0, 0x2c}, 1) +
                Numbers({0, 0, width, height}, 2) + Number(flags, 1) +
                (flags & 0x80 ? PatternBytes(3 * 128, 99) : QByteArray()) + GifPixels();
    }
    return file + '\x3b';
}

QByteArray SunRaster(int bits, int kind) {
    const int palette = bits == 8 ? 3 * 250 : 0;  // the library refuses full ones
    const int row = (width * bits + 15) / 16 * 2;
    // Bytes below 128 stand for themselves in run lengths; three bytes are a run of four.
    const QByteArray pixels = kind == 2 ? PatternBytes(row * height - 4, 127) + "\x80\x03\x05"
                                        : PatternBytes(row * height);
    return Numbers({0x59a66a95, width, height, bits, pixels.size(), kind, palette ? 1 : 0, palette},
                   4, Order::Big) +
           PatternBytes(palette) + pixels;
}

QByteArray PsdResources() {
    const QByteArray jpeg = ThumbnailJpeg();
    const QByteArray thumbnail = Numbers({1, 16, 11, 48, 48 * 11, jpeg.size()}, 4, Order::Big) +
                                 Numbers({24, 1}, 2, Order::Big) + jpeg;
    return ImageResource(1028, IptcBlock()) + ImageResource(1036, thumbnail) +
           ImageResource(1039, ColourProfile()) + ImageResource(1058, ExifBlock(true).mid(6)) +
           ImageResource(1060, XmpPacket());
}

// Modes: 1 grey, 2 palette, 3 colour, 4 separated.
QByteArray Psd(int mode, int channels, int bits, bool runs, const QByteArray& resources = {}) {
    const int row = width * bits / 8;
    const int rows = height * channels;
    QByteArray lengths;
    QByteArray data;
    for (int i = 0; i < rows; ++i) {  // literal bytes and one run, or plain
        const QByteArray bytes =
            runs ? Number(row - 11, 1) + PatternBytes(row - 10) + Numbers({-9, i}, 1)
                 : PatternBytes(row);
        lengths += runs ? Number(bytes.size(), 2, Order::Big) : QByteArray();
        data += bytes;
    }
    const int palette = mode == 2 ? 768 : 0;
    return "8BPS" + Numbers({1, 0, 0, 0, channels}, 2, Order::Big) +
           Numbers({height, width}, 4, Order::Big) + Numbers({bits, mode}, 2, Order::Big) +
           Number(palette, 4, Order::Big) + PatternBytes(palette) +
           Number(resources.size(), 4, Order::Big) + resources + Number(0, 4) +
           Number(runs, 2, Order::Big) + lengths + data;
}

QByteArray IffChunk(const char* type, const QByteArray& data) {
    return type + Number(data.size(), 4, Order::Big) + data + QByteArray(data.size() % 2, '\0');
}

QByteArray Iff(int planes, bool runs) {
    const int row = (width + 15) / 16 * 2;
    QByteArray body;
    for (int i = 0; i < height * planes; ++i) {  // literal bytes and one run, or plain
        body += runs ? Number(row - 4, 1) + PatternBytes(row - 3) + Numbers({-2, i}, 1)
                     : PatternBytes(row);
    }
    const QByteArray header = Numbers({width, height, 0, 0}, 2, Order::Big) +
                              Numbers({planes, 0, runs, 0}, 1) +
                              Numbers({0, 0x0101, width, height}, 2, Order::Big);
    const QByteArray chunks = "ILBM" + IffChunk("BMHD", header) +
                              (planes <= 8 ? IffChunk("CMAP", PatternBytes(3 << planes)) : "") +
                              IffChunk("BODY", body);
    return IffChunk("FORM", chunks);
}

QByteArray Pcx(int planes) {
    const int row = width + 1;
    QByteArray pixels;
    for (int i = 0; i < height * planes; ++i) {  // two runs of 10 and single bytes below 192
        pixels += Numbers({0xca, i, 0xca, 0xff}, 1) + PatternBytes(row - 20, 191);
    }
    const QByteArray header = Numbers({10, 5, 1, 8}, 1) +
                              Numbers({0, 0, width - 1, height - 1, 72, 72}, 2) + PatternBytes(48) +
                              Numbers({0, planes}, 1) + Numbers({row, 1}, 2);
    return header.leftJustified(128, '\0') + pixels +
           (planes == 1 ? '\x0c' + PatternBytes(768) : QByteArray());
}

QByteArray Sgi(bool runs) {
    const QByteArray header = Number(0x01da, 2, Order::Big) + Numbers({runs, 1}, 1) +
                              Numbers({3, width, height, 3}, 2, Order::Big) +
                              Numbers({0, 255}, 4, Order::Big);
    QByteArray places;
    QByteArray lengths;
    QByteArray rows;
    for (int i = 0; i < 3 * height; ++i) {
        const QByteArray row = runs ? '\xb0' + PatternBytes(0x30) + Numbers({width - 0x30, i, 0}, 1)
                                    : PatternBytes(width);
        places += Number(512 + 8 * 3 * height + rows.size(), 4, Order::Big);
        lengths += Number(row.size(), 4, Order::Big);
        rows += row;
    }
    return header.leftJustified(512, '\0') + (runs ? places + lengths : QByteArray()) + rows;
}

// Blocks of 4 x 4 pixels take blockBytes; without a code the pixels are plain. The library leaves
// out blocks that the picture's edge cuts.
constexpr PixelSize ddsSize{64, 48};

QByteArray Dds(const QByteArray& code, int blockBytes) {
    const auto [columns, rows] = ddsSize;
    const int bytes = code.isEmpty() ? columns * rows * 3 : columns / 4 * (rows / 4) * blockBytes;
    const QByteArray format = code.isEmpty()
                                  ? Numbers({32, 0x40, 0, 24, 0xff0000, 0xff00, 0xff, 0}, 4)
                                  : Numbers({32, 4}, 4) + code + QByteArray(20, '\0');
    return "DDS " + Numbers({124, 0x1007, rows, columns, 0, 0, 0}, 4) + QByteArray(44, '\0') +
           format + Numbers({0x1000, 0, 0, 0, 0}, 4) + PatternBytes(bytes);
}

QByteArray Xbm() {
    QByteArray text = "#define eye_width " + QByteArray::number(width) + "\n#define eye_height " +
                      QByteArray::number(height) + "\nstatic char eye_bits[] = {\n";
    for (int i = 0; i < (width + 7) / 8 * height; ++i) {
        text += "0x" + QByteArray::number(i * 7 % 256, 16).rightJustified(2, '0') + ",";
    }
    text.back() = '}';
    return text + ";\n";
}

}  // namespace

std::vector<SeedFile> OldTypeSeeds() {
    const QByteArray loop = QByteArray("\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0", 19);
    const QByteArray comment = QByteArray(
        "\x21\xfe\x04"
        "fish\0",
        8);
    return {
        {"gif/plain", Gif(1, 0, {}), seedSize},
        {"gif/interlaced", Gif(1, 0x40, comment), seedSize},
        {"gif/animated", Gif(3, 0x86, loop), seedSize},
        {"psd/rle", Psd(3, 3, 8, true), seedSize},
        {"psd/alpha-rle", Psd(3, 4, 8, true), seedSize},
        {"psd/grey-rle", Psd(1, 1, 8, true), seedSize},
        {"psd/palette", Psd(2, 1, 8, false), seedSize},
        {"psd/16-rle", Psd(3, 3, 16, true), seedSize},
        {"psd/described", Psd(3, 3, 8, true, PsdResources()), seedSize},
        {"psd/cmyk-rle", Psd(4, 4, 8, true), seedSize},
        {"ras/1", SunRaster(1, 1), seedSize},
        {"ras/8", SunRaster(8, 1), seedSize},
        {"ras/24", SunRaster(24, 1), seedSize},
        {"ras/8-rle", SunRaster(8, 2), seedSize},
        {"iff/8", Iff(8, false), seedSize},
        {"iff/8-rle", Iff(8, true), seedSize},
        {"iff/24-rle", Iff(24, true), seedSize},
        {"pcx/8", Pcx(1), seedSize},
        {"pcx/24", Pcx(3), seedSize},
        {"sgi/plain", Sgi(false), seedSize},
        {"sgi/rle", Sgi(true), seedSize},
        {"dds/24", Dds({}, 0), ddsSize},
        {"dds/dxt1", Dds("DXT1", 8), ddsSize},
        {"dds/dxt5", Dds("DXT5", 16), ddsSize},
        {"xbm/plain", Xbm(), seedSize},
    };
}

}  // namespace varnel::testing
