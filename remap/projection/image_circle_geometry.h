// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the Varnel and Horizon projections share: the size of the image circle in source pixels and
// the rows and columns that their loops cover.
#pragma once

#include "remap/projection/geometry.h"

namespace varnel {

// What both projections are made from. Offsets in thousandths, ratio and effect in percent.
struct CircleView {
    PixelSize source;
    bool landscape = true;
    float offsetX = 0.0F;
    float offsetY = 0.0F;
    float ratio = 0.0F;
    float effect = 100.0F;
};

struct ImageCircleGeometry {
    std::int32_t halfWidth = 0;  // cx, rounded down
    std::int32_t upperHalf = 0;  // height - height / 2
    double shiftX = 0.0;         // whole pixels
    double shiftY = 0.0;
    std::int32_t centreX = 0;
    std::int32_t centreY = 0;
    float radius = 0.0F;          // R; single precision, compared and divided as double
    std::int32_t lastColumn = 0;  // columns to each side of the centre
    std::int32_t lastRow = 0;     // rows to each side of the centre
};

// R = 50 * side / ratio * 100 / effect, the side being the width of a landscape frame and the
// height of an upright one. Throws RunTimeError when ratio or effect is 0 or a value overflows.
ImageCircleGeometry MeasureCircle(const CircleView& view);

}  // namespace varnel
