// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window of the sample room looks onto: a crossing, an avenue with houses and trees that
// runs to the horizon, hills and sky.
#pragma once

#include "samples/space.h"
#include "samples/texture.h"

namespace varnel::sample {

// The light that comes along the beam from outside.
Colour StreetLight(const Beam& beam);

}  // namespace varnel::sample
