// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the fine engine is measured by, as plain loops in double precision. Pictures are of 8 or 16
// bits or of floating point, without alpha, and have the source's format; the record's sampling is
// not looked at. They throw what maps throw and std::bad_alloc.
#pragma once

#include "remap/projection/projection_info.h"

namespace varnel {
class Bitmap;
}

namespace varnel::reference {

// The same kernel, pixel by pixel through the map itself. At the edge of a map pixels are shown
// wholly or not at all.
std::unique_ptr<Bitmap> RenderFine(Projection projection, const ImageRecord& image,
                                   const Bitmap& source, const OutputWish& wish = {});

// The mean light of so many times as many places of each pixel, perSide even, between which the
// photo is blended sharply: what a result would ideally show of the photo.
std::unique_ptr<Bitmap> RenderSupersampled(Projection projection, const ImageRecord& image,
                                           const Bitmap& source, int perSide = 16,
                                           const OutputWish& wish = {});

}  // namespace varnel::reference
