// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the Varnel and Horizon projections share: the size of the image circle in source pixels and
// the rows and columns that their loops cover.
#pragma once

#include "remap/projection/frames.h"

namespace varnel {

// What both projections are made from. The effect is in percent.
struct CircleView {
    SourceFrame source;
    OutputFrame output;
    float effect = 100.0F;
};

struct ImageCircleGeometry {
    PixelSize source;
    PixelSize output;
    PixelPosition sourceCentre;
    PixelPosition outputCentre;
    double scale = 1.0;                // of the result
    PixelWindow shown;                 // of the result
    double outputShiftY = 0.0;         // whole pixels
    std::int32_t outputUpperHalf = 0;  // height - height / 2 of the frame before it is cut
    float radius = 0.0F;  // R on the photo; single precision, compared and divided as double
    std::int32_t lastColumn = 0;  // columns to each side of the centre on that frame
    std::int32_t lastRow = 0;     // rows to each side of it
};

// R follows the effect. Throws RunTimeError when ratio or effect is 0 or a value overflows.
ImageCircleGeometry MeasureCircle(const CircleView& view);

}  // namespace varnel
