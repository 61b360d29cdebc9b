// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the surfaces of the sample room look like in even light.
#pragma once

#include "samples/room.h"
#include "samples/texture.h"

namespace varnel::sample {

Colour PaintOf(const Hit& hit);

// The light that a surface gives by itself; 0 for what only reflects.
double GlowOf(const Hit& hit);

}  // namespace varnel::sample
