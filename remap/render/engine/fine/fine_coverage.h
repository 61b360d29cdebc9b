// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How much of the photo and of its image circle the pixels of a result show, worked out instead of
// drawn. Throws what maps throw and std::bad_alloc.
#pragma once

#include "remap/image/bitmap.h"
#include "remap/projection/record_maps.h"

namespace varnel {

// As large as the frames' result, in a format without alpha: blue is the share of the circle, green
// that of the photo, from black to white. Without a circle it is all of the photo.
BitmapHandle FineCoverage(Projection projection, const ImageRecord& image, const Frames& frames,
                          PixelFormat format);

}  // namespace varnel
