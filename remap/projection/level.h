// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Levelling the camera by a horizon that was traced on the fisheye. However curved it looks there,
// its rays lie in one plane through the camera; the turns that lay this plane flat make it a
// straight level line through the middle of the straight-line view.
#pragma once

#include <optional>
#include <span>

#include "remap/projection/maps/rectilinear_map.h"

namespace varnel {

// The unit ray that the straight-line view, not turned yet, shows at a source position; nothing
// where the lens shows nothing. A partial effect bends the rays as the conversion does. Throws
// RunTimeError as RectilinearRadius.
std::optional<Ray> SourceRay(const RectilinearView& view, const SourceOffset& offset);

struct HorizonFit {
    Ray normal;           // of the plane, unit length; either of its two directions
    double spread = 0.0;  // radians: half of the rays are nearer to the plane
    double length = 0.0;  // radians between the two outermost rays that count
};

// The plane through the camera that fits unit rays best; up to a third of them may be stray.
// Nothing for fewer than two different rays.
std::optional<HorizonFit> FitHorizon(std::span<const Ray> rays);

// RotateX and RotateZ, degrees.
struct LevelTurn {
    double x = 0.0;
    double z = 0.0;
};

// Of the two solutions, which show the horizon upright and upside down, the one that is nearer to
// the present turns. The turn to the left or right keeps a horizon level and has no part in it.
LevelTurn TurnForHorizon(const Ray& normal, float effectPercent, const LevelTurn& present);
// For a view along the vertical, not panned: which of its two directions and of the two ways there
// is the nearer one.
LevelTurn TurnForPole(const Ray& normal, const LevelTurn& present);

}  // namespace varnel
