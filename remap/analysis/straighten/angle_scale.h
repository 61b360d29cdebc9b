// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The scale of angles, which straight edges alone leave open: tan(angle) -> scale * tan(angle)
// keeps every straight line straight. Throws std::bad_alloc.
#pragma once

#include <optional>

#include "remap/analysis/straighten/lens_view.h"

namespace varnel {

struct AngleScale {
    double scale = 1.0;       // the lens's tangents have to be multiplied by it
    double deviation = 0.15;  // of the logarithm of the scale; this much where nothing tells
};

// From tagged edges, which are as exact as noise (pixels) says, and from the focal length in pixels
// per radian (to 2 percent).
AngleScale FindAngleScale(const LensView& lens, const std::vector<EdgeTrace>& edges, double noise,
                          std::optional<double> focalPixels);

// The lens with the tangents of its angles multiplied.
LensView WithAngleScale(const LensView& lens, double scale);

}  // namespace varnel
