// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A small copy of a picture for its metadata.
#pragma once

#include "remap/image/bitmap.h"

namespace varnel {

// At most 160 x 120 pixels, 120 x 160 of a picture that stands upright, and never larger than the
// bitmap, which has 24 bits. Few pixels are looked at: a large picture takes half a millisecond.
// Throws std::bad_alloc.
BitmapHandle ThumbnailOf(const Bitmap* bitmap);

}  // namespace varnel
