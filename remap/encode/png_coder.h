// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing PNG on all cores.
#pragma once

#include <QByteArray>
#include <optional>

#include "base/block_runner.h"
#include "remap/encode/metadata_writer.h"
#include "remap/image/bitmap.h"

namespace varnel {

// A PNG file with the pixels and the metadata that the image library writes for a 24-bit bitmap
// with flags 0, and the metadata given; only the pixels are filtered and compressed otherwise. The
// same bytes whatever the runner. None for a bitmap that is to be left to the library. Throws
// std::bad_alloc.
std::optional<QByteArray> EncodePng(const Bitmap* bitmap, BlockRunner& runner,
                                    const WrittenMetadata& metadata = {});

}  // namespace varnel
