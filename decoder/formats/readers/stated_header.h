// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What files state of a picture in front of its pixels. Throws what the library's readers throw.
#pragma once

#include <optional>

#include "decoder/formats/library_reader.h"

namespace varnel {

struct StatedHeader {
    std::optional<StatedSize> size;          // nothing where the type does not tell it alone
    PixelFormat format = PixelFormat::Bgr8;  // that keeps the picture's own samples
};

// Without reading pixels.
StatedHeader HeaderOf(const LibraryReader& reader, const PictureFile& file);

}  // namespace varnel
