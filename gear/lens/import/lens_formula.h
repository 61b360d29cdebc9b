// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From another program's formula to sixteen knots. Throws std::bad_alloc only.
#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <numbers>
#include <optional>

#include "base/reason.h"
#include "state/records/sampled_lens.h"

namespace varnel {

struct LensFormula {
    // How far from the axis a ray at so many radians lands; in pixels or millimetres.
    std::function<double(double angle)> radius;
    double corner = 0.0;                               // radius of the picture's farthest corner
    double shorterSide = 0.0;                          // of the picture, in the same unit
    double widest = 140.0 * std::numbers::pi / 180.0;  // the field ends there at the latest
};

struct ImportedLenses {
    QList<SampledLens> lenses;
    // Why there are none, or which of the file's lenses were left out and why.
    Reason reason;

    // Takes the lens, or leaves it out.
    void Add(const Reason& reasonAgainst, SampledLens lens);
};

// Fills in the knots: up to the corner or the widest angle; where the formula turns back before, up
// to there. A formula that turns back within three quarters of the shorter side describes no
// picture: the reason is the angle. One that bends too much for sixteen knots is refused too. Radii
// are taken as millimetres.
Reason FillKnots(const LensFormula& formula, SampledLens& lens);

// The same for pixels of a picture of the centre's size, which the lens has: the unit becomes the
// radius at the limit of the field.
Reason FillKnotsFromPixels(const LensFormula& formula, SampledLens& lens);

// The formula's corner and side for the lens's centre and size, in pixels.
void MeasurePicture(const LensCentre& centre, LensFormula& formula);

// What lies between red or blue and green at so many millimetres from the centre, as a shift over
// the field of the lens, whose knots are there; least squares.
ColourShift ShiftOver(const SampledLens& lens, const std::function<double(double radius)>& shift);

}  // namespace varnel
