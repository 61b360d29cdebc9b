// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TIFF files coded on all cores: LZW over the differences of neighbouring pixels, in strips.
#pragma once

#include <FreeImage.h>

#include <QByteArray>
#include <optional>

#include "base/block_runner.h"
#include "remap/encode/metadata_writer.h"

namespace varnel {

// The file that the image library writes with TIFF_LZW, in larger strips: the same pixels, and
// every other tag as it is there, besides the metadata given. Equal bytes whatever the runner. None
// for a bitmap other than of 24 bits, for metadata that the library writes in a way unknown here,
// and for a file of 4 GB or more. Throws std::bad_alloc.
std::optional<QByteArray> EncodeTiffLzw(const Bitmap* bitmap, BlockRunner& runner,
                                        const WrittenMetadata& metadata = {});

}  // namespace varnel
