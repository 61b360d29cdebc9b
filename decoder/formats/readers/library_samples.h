// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The image library's pictures in formats of ours that have their depth.
#pragma once

#include <FreeImage.h>

#include "remap/image/bitmap.h"

namespace varnel {

// What keeps the samples of a picture, or of one that only has its header. Throws nothing.
PixelFormat FormatOfSamples(FIBITMAP* bitmap);

// A picture in such a format, without metadata: grey in all three colours; alpha that is 0
// everywhere counts as none. Floating-point samples that are no number become 0, infinite ones 1e9.
// Empty for pictures that are not deeper than 24 bits, have no alpha, or are none of those that a
// photo may be. Throws std::bad_alloc.
BitmapHandle OwnSamples(FIBITMAP* bitmap);

}  // namespace varnel
