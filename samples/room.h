// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The shape of the sample room and what stands in it. The eye is at (0, 1.5, 0), metres, the floor
// at height 0, the window wall ahead.
#pragma once

#include "samples/space.h"

namespace varnel::sample {

enum class Surface {
    Floor,
    Ceiling,
    LeftWall,
    RightWall,
    WindowWall,
    BackWall,
    Reveal,
    WindowFrame,
    Glass,  // the view goes on outside
    Timber,
    Enamel,
    Books,
    Radiator,
    Grille,
    Clay,
    Leaves,
    Lamp,
    Globe
};

struct Hit {
    double distance;
    Ray point;
    Ray normal;  // length 1, toward the room
    Surface surface;
};

inline constexpr Ray eye{0.0, 1.5, 0.0};
inline constexpr Box roomBox{{-2.4, 0.0, -2.2}, {2.4, 2.8, 2.6}};
// The hole in the window wall, as deep as the wall; the glass is at its far side.
inline constexpr Box openingBox{{-1.8, 0.5, 2.6}, {1.8, 2.4, 2.82}};
// Toward the sun, length 1 to three digits.
inline constexpr Ray sunward{-0.62, 0.60, 0.505};

Hit NearestInRoom(const Beam& beam);

// True when the sun shines on this point of the room, through the window and past the furniture.
bool SunReaches(const Ray& point);

}  // namespace varnel::sample
