// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A picture as a frame for an encoder. Throws std::bad_alloc.
#pragma once

#include "base/block_runner.h"
#include "film/frames/frame_buffer.h"
#include "remap/image/bitmap.h"

namespace varnel {

// 4:2:0 with 8 bits, limited range, the matrix and primaries of BT.709 and the curve of sRGB, for a
// picture of that size; its last column and bottom row are left out where they are odd.
FrameFormat StillFormat(PixelSize picture);

// The picture, Bgr8 or Bgra8, whose alpha is left out, in a frame of its StillFormat. A colour's
// sample is the mean of three columns, weighted 1, 2 and 1, and of two rows.
void BitmapToFrame(const Bitmap& picture, const FrameTarget& frame, BlockRunner& runner);

}  // namespace varnel
