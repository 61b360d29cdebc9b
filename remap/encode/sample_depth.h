// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures with other samples. Words and bytes stand for the same part of their range. Floating
// point without a colour profile is linear light, which 8 and 16 bits have coded by the curve of
// sRGB; with a profile all are coded by it. What is beyond black and white is cut off then.
#pragma once

#include "base/block_runner.h"
#include "remap/image/bitmap.h"

namespace varnel {

// A copy with such samples, metadata included; blocks of rows are shared out by the runner. Throws
// std::bad_alloc and what the runner throws.
BitmapHandle InSamples(const Bitmap& bitmap, SampleKind samples, BlockRunner& runner);

}  // namespace varnel
