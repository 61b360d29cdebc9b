// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Windows and OS/2 bitmap files that the image library refuses. Throws std::bad_alloc only.
#pragma once

#include "decoder/formats/readers/bmp_header.h"
#include "remap/image/bitmap.h"

namespace varnel {

// By Qt's reader, as 24 bits with resolution and embedded colour profile; empty when that refuses.
BitmapHandle LoadBmp(const PictureFile& file, const BmpHeader& header);

}  // namespace varnel
