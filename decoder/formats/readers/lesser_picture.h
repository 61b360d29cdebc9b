// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures brought to less than their files have. Throws std::bad_alloc.
#pragma once

#include "remap/image/bitmap.h"

namespace varnel {

// The picture in 24 bits, with its metadata; alpha is dropped.
BitmapHandle InBytes(BitmapHandle bitmap);

// A picture of 24 bits, reduced to fit the box, in pixels, where it does not; without metadata.
BitmapHandle Reduced(BitmapHandle bitmap, PixelSize box);

}  // namespace varnel
