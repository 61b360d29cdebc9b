// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Proposes edges of a photo that should be straight. Throws std::bad_alloc and as its stop check.
#pragma once

#include "remap/analysis/straighten/lens_view.h"
#include "remap/analysis/straighten/stop_check.h"
#include "remap/image/bitmap.h"

namespace varnel {

struct EdgeSearch {
    double reach = 0.0;    // only within this radius of the axis, pixels; 0: everywhere
    double slack = 0.003;  // how far an edge may bow off its great circle, of its length: what
                           // the lens may be wrong by
    std::size_t most = 60;
    StopCheck stop = {};
};

// Traced edges, the longest first; the photo has 24 bits. Pieces that lie on one great circle near
// one another are one edge. The same photo always gives the same edges.
std::vector<EdgeTrace> FindEdges(const Bitmap& photo, const LensView& lens,
                                 const EdgeSearch& search = {});

}  // namespace varnel
