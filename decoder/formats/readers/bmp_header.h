// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The headers of Windows and OS/2 bitmap files. The image library refuses the newer ones and many
// run-length coded pictures, and loads cut ones without an error. Throws std::bad_alloc only.
#pragma once

#include <cstdint>
#include <optional>

#include "decoder/formats/picture_file.h"

namespace varnel {

enum class BmpCoding : std::uint32_t { Plain = 0, Rle8 = 1, Rle4 = 2, Masks = 3, AlphaMasks = 6 };

struct BmpHeader {
    std::int64_t headerBytes = 0;  // 12 or 64: OS/2; 40, 52, 56, 108 and 124: Windows
    std::int64_t width = 0;
    std::int64_t height = 0;  // without the sign that says "top row first"
    std::int64_t depth = 0;   // bits a pixel
    BmpCoding coding = BmpCoding::Plain;
    std::int64_t pixelPlace = 0;  // of the first pixel in the file
    std::int32_t perMeterX = 0;   // pixels; 0: not known
    std::int32_t perMeterY = 0;
};

// Nothing when the file is too short for a header or has none of these.
std::optional<BmpHeader> ReadBmpHeader(const PictureFile& file);

// True when pixels are missing at the file's end.
bool BmpIsCut(const PictureFile& file, const BmpHeader& header);

// Whether LoadBmp is to read it, not the image library.
bool NeedsBmpReader(const BmpHeader& header);

}  // namespace varnel
