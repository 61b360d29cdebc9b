// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a projection is to everything else: numbers worked out once for a picture, and one question,
// asked for each output pixel: where on the source is what it shows? Throws nothing.
#pragma once

#include <concepts>

#include "remap/projection/geometry.h"

namespace varnel {

// x and y are the output pixel's offset from the circle centre, y upward; the answer is an offset
// from the same centre on the source, also y upward. Both are in pixels.
template <class M>
concept PixelMap = requires(const M& map, int x, int y) {
    { map.At(x, y) } -> std::same_as<SourceOffset>;
};

}  // namespace varnel
