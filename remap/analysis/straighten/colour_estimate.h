// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How far red and blue are off green, from edges of a photo. Throws std::bad_alloc.
#pragma once

#include <optional>

#include "remap/analysis/straighten/lens_view.h"
#include "remap/image/bitmap.h"

namespace varnel {

struct ColourEstimate {
    ColourShift shift;       // pixels; divide by pixels per unit for a lens
    double atRim = 0.0;      // the shift at the outermost edges, pixels
    double deviation = 0.0;  // of atRim, pixels
};

struct ColourEstimates {
    ColourEstimate red, blue;
};

// Nothing where the edges have too few points that cross the radius. The edges are of this photo,
// which has 24 bits. From JPEG files with halved colour the shifts come out too small, by up to 0.3
// (halved in one direction) or 0.5 pixels: it is for the caller to say so.
std::optional<ColourEstimates> EstimateColour(const Bitmap& photo,
                                              const std::vector<EdgeTrace>& edges,
                                              const LensView& lens);

}  // namespace varnel
