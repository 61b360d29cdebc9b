// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG files, several bands of a picture at once.
#pragma once

#include <QByteArray>
#include <optional>

#include "base/block_runner.h"
#include "remap/encode/metadata_writer.h"
#include "remap/image/bitmap.h"

namespace varnel {

// The file that the library writes for a bitmap of 24 bits with these flags (a quality of 0 to 100,
// 0 is the library's own choice, and perhaps JPEG_SUBSAMPLING_444): the same pixels once decoded,
// tables and metadata, besides those given. That of a large picture has restart markers and so is a
// few bytes larger; it does not depend on the runner. Nothing where that cannot be done: the
// library has to try. Throws std::bad_alloc.
std::optional<QByteArray> EncodeJpeg(const Bitmap* bitmap, int flags, BlockRunner& runner,
                                     const WrittenMetadata& metadata = {});

// A JPEG file of a small bitmap of 24 bits with nothing but the picture in it. Throws
// std::bad_alloc.
QByteArray PlainJpeg(const Bitmap* bitmap, int quality);

}  // namespace varnel
