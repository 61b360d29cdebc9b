// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size that a file claims, for the types whose headers the library does not read alone: it
// would take the memory for all pixels first. Sizes are in pixels. Throws std::bad_alloc only.
#pragma once

#include <optional>

#include "decoder/formats/input_format.h"
#include "decoder/formats/picture_file.h"

namespace varnel {

struct HeaderSize {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

// GIF, IFF, SGI, DDS and JPEG 2000; nothing for other types or without a header. Good for refusing
// only: the picture that comes may be a few pixels smaller.
std::optional<HeaderSize> HeaderSizeOf(InputFormat format, const PictureFile& file);

}  // namespace varnel
