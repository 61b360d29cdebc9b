// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lines along which a picture's brightness steps. Positions are in pixels of the picture from the
// left and the first row, the middle of the first pixel at 0.5. Throws std::bad_alloc.
#pragma once

#include <vector>

#include "base/pixel_size.h"
#include "remap/analysis/straighten/edge_trace.h"

namespace varnel {

// Levels, row by row.
struct LevelMap {
    PixelSize size;
    std::vector<float> values;
};

// Each is a line of neighbouring points along one edge, the brighter side always on the same side;
// they may turn slowly, as bent edges do. Shorter ones than the least number of points are left
// out.
std::vector<std::vector<EdgePoint>> EdgeChains(const LevelMap& levels, std::size_t leastPoints);

}  // namespace varnel
