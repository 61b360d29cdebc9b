// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frame of a JPEG file: its segments, not its pixels. Places are bytes from the start of the
// file. Throws std::bad_alloc only.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/pixel_size.h"
#include "decoder/formats/picture_file.h"

namespace varnel {

// The size in the frame header; nothing when there is none. The library's own look at the header
// decodes a whole progressive picture.
std::optional<PixelSize> JpegSize(const PictureFile& file);

// The first EXIF block in front of the pixels, with its mark; empty when there is none.
QByteArray JpegExif(const PictureFile& file);

// Where the numbers of the markers in front of the pixels are behind which EXIF, XMP and IPTC
// stand.
std::vector<std::int64_t> JpegMetadataMarkers(const PictureFile& file);

// Everything in front of the pixels with EXIF blocks under a marker that no library reads; empty
// for other files.
QByteArray HeaderWithoutExif(const PictureFile& file);

// True when the file stops before the picture's end marker.
bool JpegIsCut(const PictureFile& file);

}  // namespace varnel
