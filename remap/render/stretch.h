// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The stretch: every row of a picture is widened or narrowed about the picture's middle column, by
// a factor that follows a cosine over the height. Heights run from -1, the bottom row, to 1, the
// top row.
#pragma once

#include "remap/render/render.h"

namespace varnel {

struct StretchCurve {
    double strength = 0.0;  // -1 to 1; positive widens the rows away from the middle row
    double middle = 0.0;    // height of the row that keeps its width, -1 to 1

    // What a row's distances from the middle column are multiplied with to find their source: below
    // 1 where the picture is widened, 1 at the middle row, 1 - strength at height 1 from it and
    // from there on.
    double FactorAt(double height) const;
};

// The middle of count rows or columns: between two of them when the count is even.
inline double MiddleOf(int count) {
    return (count - 1) / 2.0;
}

// The height of row y of a picture with that many rows.
double HeightOfRow(int y, int rows);

// Replaces ResultBitmap as the projections do, always interpolated along the row; columns from
// beside the source are black. Throws std::bad_alloc.
void RenderStretch(const StretchCurve& curve, SizeKind kind, RenderProgress& progress,
                   RenderContext& context);

}  // namespace varnel
