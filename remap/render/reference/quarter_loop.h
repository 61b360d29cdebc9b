// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Four output pixels from one position: the maps that are symmetric about the circle centre. Throws
// nothing.
#pragma once

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/projection/smooth_map.h"
#include "remap/render/render_session.h"

namespace varnel {

// The reading of smooth maps. Without interpolation the horizontal offset is rounded by itself
// before the sum is.
inline PixelLevels ReadAt(const RenderSession& run, const PixelPosition& centre,
                          SourceOffset offset) {
    return run.Nearest()
               ? SampleNearest(run.Source(), centre.x + Round(offset.u), centre.y + offset.v)
               : SampleBilinear(run.Source(), centre.x + offset.u, centre.y + offset.v);
}

// Column x (<= 0) of the lower left quarter and its three mirror images, rows -centre.bottom to 0.
inline void RenderQuarterColumn(const RenderSession& run, const SmoothMap& map, std::int32_t x) {
    const PixelPosition& from = map.SourceCentre();
    const std::int32_t cx = map.Extents().cx;
    const std::int32_t cy = map.Extents().cy;
    for (std::int32_t y = -map.Extents().bottom; y <= 0; ++y) {
        const auto [u, v] = map.At(x, y);
        const double left = map.MirrorShift().x - u;
        const double below = map.MirrorShift().y - v;
        run.Write(cx + x, cy + y, ReadAt(run, from, {u, v}));
        run.Write(cx - x, cy + y, ReadAt(run, from, {left, v}));
        run.Write(cx + x, cy - y, ReadAt(run, from, {u, below}));
        run.Write(cx - x, cy - y, ReadAt(run, from, {left, below}));
    }
}

}  // namespace varnel
