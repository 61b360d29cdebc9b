// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures for files that hold linear light and no colour profile.
#pragma once

#include "base/block_runner.h"
#include "remap/image/bitmap.h"

namespace varnel {

// A copy of a floating-point picture without its colour profile: linear light of sRGB's primaries,
// where colours that sRGB does not have are below 0 or beyond 1. A profile that cannot be used
// counts as sRGB's. Throws std::bad_alloc and what the runner throws.
BitmapHandle InLinearLight(const Bitmap& bitmap, BlockRunner& runner);

}  // namespace varnel
