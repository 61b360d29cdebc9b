// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Small sound picture files of every type and variant, the ground that damaged files grow on.
#pragma once

#include <QByteArray>
#include <string>
#include <string_view>
#include <vector>

#include "remap/image/freeimage_bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel::testing {

struct SeedFile {
    std::string name;  // "type/variant"
    QByteArray bytes;
    PixelSize size;
    bool loads = true;  // false: sound, but the library may refuse it or die of it

    std::string Type() const { return name.substr(0, name.find('/')); }
};

inline constexpr PixelSize seedSize{61, 43};

// All of them, made once, always the same and in the same order. Those written by hand do not
// depend on any library's version.
const std::vector<SeedFile>& SeedFiles();

// The bytes of the one with that name.
const QByteArray& Seed(std::string_view name);

// Its parts.
std::vector<SeedFile> LibrarySeeds();  // by the image library
std::vector<SeedFile> BmpSeeds();      // the rest by hand
std::vector<SeedFile> PngSeeds();
std::vector<SeedFile> OldTypeSeeds();  // GIF and what programs of the 1980s and 1990s left
std::vector<SeedFile> TiffSeeds();
std::vector<SeedFile> RawSeeds();
std::vector<SeedFile> ModernSeeds();  // HEIC, AVIF and JPEG XL

// A Windows or OS/2 bitmap. Its colours have 7 as red; blue is the column; green is the row from
// the bottom where a pixel has 24 or 32 bits, else twice the column (of few colours, modulo their
// number).
struct BmpKind {
    int headerBytes;  // 12, 40, 52, 56, 64, 108 or 124; 12 and 64 are OS/2's
    int depth;
    int coding = 0;  // as in the file: 0 plain, 1 and 2 run lengths, 3 masks
    bool topFirst = false;
    bool lastRowEnds = true;  // run lengths: an end of the row also after the last one

    bool HasRuns() const { return coding == 1 || coding == 2; }
    PixelColor Colour(int x, int y) const {
        const int column = depth > 8 ? x : x % (1 << depth);
        const int row = depth > 8 ? y : 2 * column;
        return {static_cast<BYTE>(column), static_cast<BYTE>(row), 7, 0};
    }
};
QByteArray Bmp(const BmpKind& kind, PixelSize size);

// A raw photo of 64 x 48 pixels: a mosaic or three developed samples, 16 bits each, of a pattern if
// none are given. What is grey has half as much red as green and two thirds as much blue.
QByteArray RawPhoto(bool mosaic, int orientation, const QByteArray& pixels = {});

// What photos carry: an EXIF block with its mark (place, thumbnail, a maker's note), and others.
QByteArray ExifBlock(bool canon);
QByteArray IptcBlock();
QByteArray XmpPacket();
QByteArray ColourProfile();
QByteArray ThumbnailJpeg();

// The seeds' picture as if it had been read with all that. Really reading it is for the decoder:
// the library reads beyond its memory even with sound EXIF blocks.
LibraryBitmap DescribedPicture();

}  // namespace varnel::testing
