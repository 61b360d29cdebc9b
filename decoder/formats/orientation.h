// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which way up a photo's file says that it was taken. Throws std::bad_alloc only.
#pragma once

#include <QByteArrayView>
#include <optional>

#include "decoder/formats/input_format.h"
#include "decoder/formats/picture_file.h"
#include "decoder/formats/tiff_structure.h"

namespace varnel {

// As EXIF counts, see remap/image/exif_orientation.h; 1 when the block does not state it properly.
// The block begins with its byte order, or with the mark that it has in a JPEG file.
int OrientationInExif(QByteArrayView block);

// Of a JPEG, PNG, WebP or TIFF file, or of a raw file that is built like a TIFF (for which the
// facts are); else 1.
int OrientationOf(InputFormat format, const PictureFile& file,
                  const std::optional<TiffStructure>& tiff);

}  // namespace varnel
