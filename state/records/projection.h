// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections by their numbers, which are stored in records. What is known of each stands in
// remap/projection/projection_info.h.
#pragma once

#include <cstdint>

namespace varnel {

enum class Projection : std::int16_t {
    Varnel = 0,
    Rectilinear = 1,
    Equidistance = 2,
    Horizon = 3,
    Stereographic = 4,
    Panini = 5,
    Cylindrical = 6,
    Mercator = 7,
    Equirectangular = 8,
    FisheyeEquidistant = 9,
    FisheyeEquisolid = 10,
    Orthographic = 11,
    LittlePlanet = 12,
    Unrolled = 13,
};

}  // namespace varnel
