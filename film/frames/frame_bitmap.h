// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A frame as a picture for all that works on photos. Throws std::bad_alloc.
#pragma once

#include "base/block_runner.h"
#include "film/frames/frame_format.h"
#include "remap/image/bitmap.h"

namespace varnel {

// Red, green and blue by the frame's matrix (ITU-T H.273: 1, 4 to 7, 9 and 10; where it is none of
// these, 1 from 1280 x 720 on and 6 below) and its range, colour between its samples linear and
// with its site; rounded, without alpha. Bgr16 for more than 8 bits unless `eightBits`, else Bgr8.
// The bitmap's rows count from the bottom row, the frame's from the top row.
BitmapHandle FrameToBitmap(const FrameView& frame, BlockRunner& runner, bool eightBits = false);

}  // namespace varnel
