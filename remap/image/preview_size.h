// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size of the preview picture and the source at that size.
#pragma once

#include "remap/image/bitmap.h"

namespace varnel {

// The largest size with the picture's proportions that is within the box (the settings' preview
// size) and within the room on the window (each side of it at least 100), never larger than the
// picture itself and at least 1 x 1. All in pixels.
PixelSize PreviewSize(PixelSize picture, PixelSize box, PixelSize room);

// The largest size with the picture's proportions within the room, also one larger than the
// picture; at least 1 x 1.
PixelSize FittedSize(PixelSize picture, PixelSize room);

// The picture reduced to that size in 8 bits without alpha, as it is seen on a screen: each pixel
// the mean of its area. Throws std::bad_alloc.
BitmapHandle ReducedCopy(const Bitmap* picture, PixelSize size);

}  // namespace varnel
