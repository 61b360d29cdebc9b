// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading a source picture at fractional positions. x counts columns, y rows from the bottom, both
// in pixels; a position off the bitmap, beyond 32 bits or no number reads no light. Blends are
// rounded as the bitmap's format has them. Throws nothing.
#pragma once

#include "remap/image/levels/pixel_levels.h"

namespace varnel {

// The pixel nearest to the position, ties to even.
PixelLevels SampleNearest(const Bitmap* bitmap, double x, double y);

// Between two neighbours of one row; y is rounded to a whole row.
PixelLevels SampleLinearX(const Bitmap* bitmap, double x, double y);

// Between four neighbours. A neighbour off the bitmap counts as black with its full weight, so that
// the picture darkens toward its edges (as transparent where the format has alpha). A position that
// is whole in both directions gives its pixel unchanged.
PixelLevels SampleBilinear(const Bitmap* bitmap, double x, double y);

}  // namespace varnel
