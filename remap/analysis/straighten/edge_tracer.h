// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Follows an edge between two clicks. Throws std::bad_alloc.
#pragma once

#include "remap/analysis/straighten/edge_step.h"
#include "remap/analysis/straighten/lens_view.h"

namespace varnel {

struct TraceSearch {
    double slack = 0.0;  // how far the places may be off, pixels; some are allowed always
    double bow = 0.03;   // how far half way the edge may be off its great circle, of its length:
                         // that of a rough guess of the lens. Below half a percent
                         // only points on one great circle are taken
};

// Points on the strongest edge near the great circle between two places near its ends. Fewer than
// ten points when there is no edge. The photo has 24 bits.
EdgeTrace TraceEdge(const Bitmap& photo, const EdgePoint& from, const EdgePoint& to,
                    const LensView& lens, const TraceSearch& search = {});

// The points moved onto the edge that they lie beside within the reach (pixels), across the line
// through their neighbours; those that find none, or another one, are left out.
std::vector<EdgePoint> SnappedToEdge(const Bitmap& photo, const std::vector<EdgePoint>& points,
                                     double reach);

}  // namespace varnel
