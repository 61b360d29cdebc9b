// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The second way to the image circle, for photos whose rim shows no step because the scene is dark
// there (night, forest): all light is inside the circle, and where some of it reaches the rim, or
// glints on the edge of the lens, the rim bounds it in a smooth line. Throws std::bad_alloc only.
#pragma once

#include "remap/analysis/rough_circle.h"

namespace varnel {

// To a few pixels: where nothing reaches the rim it may be farther out. Nothing when a corner is
// not black or the light is not all round.
std::optional<ImageCircle> CircleAroundLight(const Grey& grey);

}  // namespace varnel
