// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The lens that makes edges straight. Lengths in pixels of the photos, which are all of one size,
// angles in radians unless a name says degrees. The same edges always give the same lens. Throws
// std::bad_alloc and as its stop check.
#pragma once

#include <vector>

#include "remap/analysis/straighten/lens_model.h"
#include "remap/analysis/straighten/stop_check.h"

namespace varnel {

struct EdgeResult {
    double rms = 0.0;   // of its points, pixels across the edge
    bool used = false;  // false: it is not straight, or too short to say anything
};

struct SolvedLens {
    LensView lens;
    bool improved = false;          // false: the present lens did as well, and is what lens is
    int terms = 0;                  // beyond the two numbers of the curve
    std::vector<EdgeResult> edges;  // in the order of the edges
    // Of edges that were not used for the fit that they judge, far points damped; pixels.
    double heldOutBefore = 0.0;  // with the present lens
    double heldOutAfter = 0.0;
    double expectedBend = 0.0;  // as ViewBend: what the edges allow, and halves of them
    // The expected error of angles up to 55 degrees from the axis, degrees.
    double angleErrorDegrees = 0.0;
    // Whether tagged edges or the focal length tell the scale of angles; otherwise it is the
    // guess's.
    bool anglesFixed = false;
};

// Nothing can be said of fewer edges.
inline constexpr int leastEdges = 4;

struct SolveOptions {
    const LensView* present = nullptr;  // the lens to be better than; none: the guess
    StopCheck stop = {};
};

// Fewer edges than leastEdges give the present lens.
SolvedLens SolveLens(const std::vector<EdgeTrace>& edges, const LensView& guess,
                     const LensConstraints& known, const SolveOptions& options = {});

}  // namespace varnel
