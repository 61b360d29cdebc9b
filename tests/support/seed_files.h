// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Small sound picture files of every type and variant, the ground that damaged files grow on.
#pragma once

#include <QByteArray>
#include <string>
#include <vector>

#include "remap/bitmap.h"

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

// Its parts.
std::vector<SeedFile> LibrarySeeds();  // by the image library
std::vector<SeedFile> BmpSeeds();      // the rest by hand
std::vector<SeedFile> PngSeeds();
std::vector<SeedFile> OldTypeSeeds();  // GIF and what programs of the 1980s and 1990s left
std::vector<SeedFile> TiffSeeds();
std::vector<SeedFile> RawSeeds();

// What photos carry: an EXIF block with its mark (place, thumbnail, a maker's note), and others.
QByteArray ExifBlock(bool canon);
QByteArray IptcBlock();
QByteArray XmpPacket();
QByteArray ColourProfile();
QByteArray ThumbnailJpeg();

// The seeds' picture as if it had been read with all that. Really reading it is for the decoder:
// the library reads beyond its memory even with sound EXIF blocks.
BitmapHandle DescribedPicture();

}  // namespace varnel::testing
