// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Follows an edge between two clicks. Throws std::bad_alloc.
#pragma once

#include "remap/analysis/straighten/edge_step.h"
#include "remap/analysis/straighten/lens_view.h"

namespace varnel {

// Points on the strongest edge near the great circle between two places near its ends. The lens may
// be a rough guess: half way the edge may be off by some percent of its length; the places by the
// slack, pixels, of which some are allowed always. Fewer than ten points when there is no edge. The
// photo has 24 bits.
EdgeTrace TraceEdge(const Bitmap& photo, const EdgePoint& from, const EdgePoint& to,
                    const LensView& lens, double slack = 0.0);

// The points moved onto the edge that they lie beside within the reach (pixels), across the line
// through their neighbours; those that find none, or another one, are left out.
std::vector<EdgePoint> SnappedToEdge(const Bitmap& photo, const std::vector<EdgePoint>& points,
                                     double reach);

}  // namespace varnel
