// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where a colour of a photo steps across an edge, to a fraction of a pixel. Bitmaps have 24 bits;
// positions as in edge_trace.h. Throws std::bad_alloc.
#pragma once

#include <optional>
#include <vector>

#include "remap/analysis/straighten/edge_trace.h"
#include "remap/image/pixel_access.h"

namespace varnel {

// A line across an edge: through a place, along a direction of length 1.
struct Crossing {
    EdgePoint place;
    EdgePoint along;

    EdgePoint At(double offset) const {
        return {place.x + offset * along.x, place.y + offset * along.y};
    }
};

struct Step {
    double offset = 0.0;  // pixels along the crossing
    double slope = 0.0;   // levels per pixel, positive where it grows brighter along the crossing
};

// The slopes at whole multiples of the spacing from -reach to reach, smoothed over some pixels.
std::vector<double> Slopes(const Bitmap& photo, Channel channel, const Crossing& crossing,
                           double reach, double spacing);

// The steepest step within the reach in that sense (1 brighter, -1 darker along the crossing);
// nothing when it is fainter than the least slope or leaves the reach.
std::optional<Step> SteepestStep(const Bitmap& photo, Channel channel, const Crossing& crossing,
                                 double reach, double sense);

}  // namespace varnel
