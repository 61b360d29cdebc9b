// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A picture in another size, each pixel the mean of the area that it covers. Positions are in
// pixels from the left edge of the first column or from the lower edge of the bottom row.
#pragma once

#include "base/block_runner.h"
#include "remap/image/bitmap.h"

namespace varnel {

// Column or row n of the target covers the source from start + n * step to start + (n + 1) * step;
// what lies off the source does not count, and all off is its nearest one. The step is above 0.
struct AreaAxis {
    double start = 0.0;
    double step = 1.0;

    bool operator==(const AreaAxis& other) const = default;
};

struct AreaPlace {
    AreaAxis across;
    AreaAxis up;

    bool operator==(const AreaPlace& other) const = default;
};

// Fills the target, whose format is the source's or Bgr8, as the source's samples are seen on a
// screen. Alpha is averaged beside the colours. Throws std::bad_alloc.
void AverageAreas(const Bitmap& source, const AreaPlace& place, Bitmap& target,
                  BlockRunner& runner);

}  // namespace varnel
