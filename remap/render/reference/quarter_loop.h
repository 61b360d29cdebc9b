// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Four output pixels from one position: the views that are symmetric about the circle centre.
#pragma once

#include <utility>

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/projection/geometry.h"
#include "remap/projection/pixel_map.h"
#include "remap/render/render_session.h"

namespace varnel {

// The reading of the Rectilinear and Equidistance projections. Without interpolation the horizontal
// offset is rounded by itself before the sum is.
inline PixelColor ReadAt(const RenderSession& run, std::int32_t cx, std::int32_t cy,
                         SourceOffset offset) {
    return run.Nearest() ? SampleNearest(run.Source(), cx + Round(offset.u), cy + offset.v)
                         : SampleBilinear(run.Source(), cx + offset.u, cy + offset.v);
}

// Column x (<= 0) of the lower left quarter and its three mirror images, rows -centre.bottom to 0.
template <PixelMap Map>
void RenderQuarterColumn(const RenderSession& run, const Map& map, const CentreAndExtents& centre,
                         std::int32_t x) {
    const auto [cx, cy] = std::pair(centre.cx, centre.cy);
    for (std::int32_t y = -centre.bottom; y <= 0; ++y) {
        const auto [u, v] = map.At(x, y);
        run.Write(cx + x, cy + y, ReadAt(run, cx, cy, {u, v}));
        run.Write(cx - x, cy + y, ReadAt(run, cx, cy, {-u, v}));
        run.Write(cx + x, cy - y, ReadAt(run, cx, cy, {u, -v}));
        run.Write(cx - x, cy - y, ReadAt(run, cx, cy, {-u, -v}));
    }
}

}  // namespace varnel
