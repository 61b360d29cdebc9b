// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/described_files.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

namespace {

using enum TiffType;

constexpr PixelSize rawSize{64, 48};

struct TiffKind {
    const char* name;
    Order order;
    int bits;         // a sample
    int samples;      // a pixel
    int photometric;  // 0 and 1 grey, 2 colour, 3 palette, 5 separated, 6 luma and chroma
    int tile = 0;     // side in pixels; 0: strips
    int pages = 1;
    bool planes = false;  // one colour after the other
};

constexpr TiffKind tiffKinds[] = {
    {"big-endian", Order::Big, 8, 3, 2},     {"big-endian-16", Order::Big, 16, 3, 2},
    {"white-is-0", Order::Little, 1, 1, 0},  {"grey-4", Order::Little, 4, 1, 1},
    {"grey-16", Order::Little, 16, 1, 1},    {"palette-4", Order::Little, 4, 1, 3},
    {"palette-8", Order::Little, 8, 1, 3},   {"alpha", Order::Little, 8, 4, 2},
    {"cmyk", Order::Little, 8, 4, 5},        {"cmyk-16", Order::Little, 16, 4, 5},
    {"ycbcr", Order::Little, 8, 3, 6},       {"tiles", Order::Little, 8, 3, 2, 32},
    {"tiles-16", Order::Big, 16, 1, 1, 16},  {"planes", Order::Little, 8, 3, 2, 0, 1, true},
    {"pages", Order::Little, 8, 3, 2, 0, 3},
};

std::vector<std::uint32_t> Repeated(int count, int value) {
    return std::vector<std::uint32_t>(count, value);
}

// Pixel data in equal parts.
void AddPixels(TiffBytes& tiff, std::vector<TiffField>& fields, const TiffKind& kind) {
    constexpr int rows = 16;  // of a strip
    const int samples = kind.planes ? 1 : kind.samples;
    const int planes = kind.planes ? kind.samples : 1;
    const auto [width, height] = seedSize;
    const int across = kind.tile ? (width + kind.tile - 1) / kind.tile : 1;
    const int down = (height + (kind.tile ? kind.tile : rows) - 1) / (kind.tile ? kind.tile : rows);
    const int part = kind.tile ? kind.tile * kind.tile * samples * kind.bits / 8
                               : (width * samples * kind.bits + 7) / 8 * rows;
    std::vector<std::uint32_t> places;
    for (int i = 0; i < across * down * planes; ++i) {
        places.push_back(tiff.Data(PatternBytes(part)));
    }
    const auto lengths = Repeated(static_cast<int>(places.size()), part);
    fields.push_back({kind.tile ? 324 : 273, Long, places});
    fields.push_back({kind.tile ? 325 : 279, Long, lengths});
    if (kind.tile) {
        fields.push_back({322, Short, Repeated(1, kind.tile)});
        fields.push_back({323, Short, Repeated(1, kind.tile)});
    } else {
        fields.push_back({278, Short, {rows}});
    }
}

SeedFile Tiff(const TiffKind& kind) {
    TiffBytes tiff(kind.order);
    std::uint32_t directory = 0;
    for (int page = 0; page < kind.pages; ++page) {
        std::vector<TiffField> fields = {{256, Short, Repeated(1, seedSize.width)},
                                         {257, Short, Repeated(1, seedSize.height)},
                                         {258, Short, Repeated(kind.samples, kind.bits)},
                                         {259, Short, {1}},
                                         {262, Short, Repeated(1, kind.photometric)},
                                         {277, Short, Repeated(1, kind.samples)},
                                         {284, Short, Repeated(1, kind.planes ? 2 : 1)}};
        if (kind.photometric == 3) {
            std::vector<std::uint32_t> palette;
            for (int i = 0; i < 3 << kind.bits; ++i) {
                palette.push_back(i * 257 % 65536);
            }
            fields.push_back({320, Short, palette});
        } else if (kind.photometric == 6) {
            fields.push_back({530, Short, {1, 1}});
        } else if (kind.photometric == 2 && kind.samples == 4) {
            fields.push_back({338, Short, {2}});
        }
        AddPixels(tiff, fields, kind);
        directory = tiff.Directory(fields, directory);
    }
    return {std::string("tiff/") + kind.name, tiff.Finish(directory), seedSize};
}

struct RawKind {
    const char* name;
    Order order;
    int bits;
    bool mosaic;           // false: three developed samples
    bool preview = false;  // the first directory holds a small picture, the raw one hangs below it
    bool jpeg = false;     // the second directory has a JPEG file of the camera's
};

constexpr RawKind rawKinds[] = {{"mosaic-12", Order::Little, 12, true},
                                {"mosaic-16", Order::Little, 16, true},
                                {"mosaic-16-preview", Order::Big, 16, true, true},
                                {"mosaic-16-jpeg", Order::Little, 16, true, false, true},
                                {"linear-16", Order::Little, 16, false}};

std::vector<TiffField> PictureFields(TiffBytes& tiff, PixelSize size, int bits, int samples,
                                     int photometric, const QByteArray& pixels) {
    return {{254, Long, {photometric == 2 ? 1U : 0U}},
            {256, Short, Repeated(1, size.width)},
            {257, Short, Repeated(1, size.height)},
            {258, Short, Repeated(samples, bits)},
            {259, Short, {1}},
            {262, Short, Repeated(1, photometric)},
            {273, Long, {tiff.Data(pixels)}},
            {277, Short, Repeated(1, samples)},
            {278, Short, Repeated(1, size.height)},
            {279, Long, {static_cast<std::uint32_t>(pixels.size())}},
            {284, Short, {1}}};
}

// What a raw file says of its camera and colours.
std::vector<TiffField> CameraFields(std::uint32_t orientation) {
    return {{271, Text, {}, QByteArray("Varnel", 7)},
            {272, Text, {}, QByteArray("Test camera", 12)},
            {274, Short, {orientation}},
            {50706, Byte, {1, 4, 0, 0}},
            {50707, Byte, {1, 1, 0, 0}},
            {50708, Text, {}, QByteArray("Varnel test camera", 19)},
            {50721, SignedFraction, {1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1}},
            {50728, Fraction, {1, 2, 1, 1, 2, 3}},
            {50778, Short, {21}}};
}

// A JPEG file as cameras put it into a second directory.
std::uint32_t JpegDirectory(TiffBytes& tiff) {
    const QByteArray jpeg = ThumbnailJpeg();
    const std::uint32_t place = tiff.Data(jpeg);
    return tiff.Directory({{259, Short, {6}},
                           {513, Long, {place}},
                           {514, Long, {static_cast<std::uint32_t>(jpeg.size())}}});
}

QByteArray Raw(const RawKind& kind, std::uint32_t orientation = 1, QByteArray pixels = {}) {
    TiffBytes tiff(kind.order);
    const int samples = kind.mosaic ? 1 : 3;
    if (pixels.isEmpty()) {
        pixels = PatternBytes(rawSize.width * rawSize.height * samples * kind.bits / 8);
    }
    std::vector<TiffField> raw =
        PictureFields(tiff, rawSize, kind.bits, samples, kind.mosaic ? 32803 : 34892, pixels);
    if (kind.mosaic) {
        raw.push_back({33421, Short, {2, 2}});
        raw.push_back({33422, Byte, {0, 1, 1, 2}});
    }
    raw.push_back({50717, Long, Repeated(samples, (1 << kind.bits) - 1)});
    std::vector<TiffField> first = CameraFields(orientation);
    std::vector<TiffField> outer = raw;
    if (kind.preview) {
        outer = PictureFields(tiff, {16, 12}, 8, 3, 2, PatternBytes(16 * 12 * 3));
        outer.push_back({330, Long, {tiff.Directory(raw)}});
    }
    first.insert(first.end(), outer.begin(), outer.end());
    return tiff.Finish(tiff.Directory(first, kind.jpeg ? JpegDirectory(tiff) : 0));
}

}  // namespace

std::vector<SeedFile> TiffSeeds() {
    std::vector<SeedFile> seeds = {
        {"tiff/described", DescribedTiff(SoundBlocks(false)), seedSize},
        {"tiff/big-endian-described", DescribedTiff(SoundBlocks(true)), seedSize}};
    for (const TiffKind& kind : tiffKinds) {
        seeds.push_back(Tiff(kind));
    }
    return seeds;
}

std::vector<SeedFile> RawSeeds() {
    std::vector<SeedFile> seeds;
    for (const RawKind& kind : rawKinds) {
        seeds.push_back({std::string("dng/") + kind.name, Raw(kind), rawSize});
    }
    return seeds;
}

QByteArray RawPhoto(bool mosaic, int orientation, const QByteArray& pixels) {
    return Raw({"", Order::Little, 16, mosaic}, static_cast<std::uint32_t>(orientation), pixels);
}

// The maker's note is a directory of its own in the maker's manner: Canon's counts its places from
// the block's beginning, Nikon's has a header and counts from there.
QByteArray ExifBlock(bool canon) {
    TiffBytes tiff(canon ? Order::Little : Order::Big);
    TiffBytes nikon(Order::Big);
    std::vector<std::uint32_t> settings = {52, 0, 2, 0, 5, 3, 4};
    settings.resize(22);
    settings.insert(settings.end(), {32, 15, 15, 1});  // number 32 of 15 mm: a fisheye
    const std::vector<TiffField> notes = {{1, Short, settings},
                                          {2, Text, {}, QByteArray("a lens of 8 mm", 15)},
                                          {4, Short, {12, 0, 3, 0, 8, 0}},
                                          {0x84, Fraction, {8, 1, 8, 1, 35, 10, 35, 10}}};
    QByteArray note;
    if (canon) {
        const std::uint32_t place = tiff.Directory(notes);
        note = tiff.Finish(0).mid(place);
    } else {
        const std::uint32_t place = nikon.Directory(notes);
        note = QByteArray("Nikon\0\2\x10\0\0", 10) + nikon.Finish(place);
    }
    const std::uint32_t interop =
        tiff.Directory({{1, Text, {}, QByteArray("R98", 4)}, {2, Undefined, {}, "0100"}});
    const std::uint32_t exif =
        tiff.Directory({{0x829a, Fraction, {1, 250}},
                        {0x829d, Fraction, {35, 10}},
                        {0x8827, Short, {400}},
                        {0x9000, Undefined, {}, "0230"},
                        {0x9204, SignedFraction, {0xffffffffU, 3}},
                        {0x9286, Undefined, {}, QByteArray("ASCII\0\0\0eye", 11)},
                        {0x927c, Undefined, {}, note},
                        {0xa005, Long, {interop}}});
    const std::uint32_t place = tiff.Directory({{0, Byte, {2, 3, 0, 0}},
                                                {1, Text, {}, QByteArray("N", 2)},
                                                {2, Fraction, {50, 1, 30, 1, 11, 10}},
                                                {3, Text, {}, QByteArray("E", 2)},
                                                {4, Fraction, {14, 1, 25, 1, 7, 10}}});
    const QByteArray thumbnail = ThumbnailJpeg();
    const std::uint32_t thumbnailPlace = tiff.Data(thumbnail);
    const std::uint32_t second =
        tiff.Directory({{259, Short, {6}},
                        {513, Long, {thumbnailPlace}},
                        {514, Long, {static_cast<std::uint32_t>(thumbnail.size())}}});
    const std::uint32_t first = tiff.Directory(
        {{271, Text, {}, canon ? QByteArray("Canon", 6) : QByteArray("NIKON CORPORATION", 18)},
         {272, Text, {}, QByteArray("a camera", 9)},
         {274, Short, {1}},
         {282, Fraction, {72, 1}},
         {283, Fraction, {72, 1}},
         {0x8769, Long, {exif}},
         {0x8825, Long, {place}}},
        second);
    return QByteArray("Exif\0\0", 6) + tiff.Finish(first);
}

}  // namespace varnel::testing
