// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// EXIF made ready for other files: cleaned of what was about the old pixels, with room for a new
// thumbnail.
#pragma once

#include <exiv2/exif.hpp>

#include "base/pixel_size.h"
#include "remap/image/photo_metadata.h"

namespace varnel {

struct ExifWishes {
    PixelSize size{};
    bool upright = true;  // orientation 1 is written
    Exiv2::ByteOrder byteOrder = Exiv2::littleEndian;
    // Where the photo does not state them itself.
    double dotsPerInchX = 72.0;
    double dotsPerInchY = 72.0;
    bool isSrgb = true;
};

// Fills the EXIF of the metadata, with a note where a JPEG file cannot hold all of it. May throw
// what the library throws.
void FillExif(Exiv2::ExifData data, const ExifWishes& wishes, PhotoMetadata& metadata);

}  // namespace varnel
