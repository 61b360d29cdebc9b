// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What there is to see around a camera that stands still: a colour for every direction. A scene is
// a plain function, the same at every call and safe to call from several threads at once.
#pragma once

#include <functional>

#include "remap/projection/geometry.h"

namespace varnel {

// Levels, 0..255.
struct Colour {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

// Directions have x to the right, y up and z along the optical axis; they need not have length 1.
using Scene = std::function<Colour(const Ray& direction)>;

// The sample scene: a room on the first floor with a big window onto a street.
Colour LookAt(const Ray& direction);

// Gradients only: few waves of the direction, so that no sampling loses anything that counts.
// Every channel differs and nothing is symmetric.
Colour LookAtGradients(const Ray& direction);

// Bright where a direction leans toward the normal, dark elsewhere: one straight edge without end,
// the plane through the eye across the normal.
struct EdgeScene {
    Ray normal;
    double dark = 30.0;
    double bright = 220.0;

    Colour operator()(const Ray& direction) const;
};

}  // namespace varnel
