// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Steering a conversion by its result: the turns of the camera and the angle of view with which a
// place of the photo comes under a point of the result, found through the map itself. Points of the
// result and places on the photo are positions as in remap/analysis/inverse_mapping.h. Throws
// nothing: with numbers that make no conversion, or where nothing brings the place nearer, the
// record stays as it is.
#pragma once

#include <optional>

#include "remap/analysis/inverse_mapping.h"
#include "remap/projection/projection_info.h"

namespace varnel {

// The narrowest and the widest straight-line view that can be steered to, degrees; others go as
// far as their control.
inline constexpr double narrowestView = 20.0;
inline constexpr double widestView = 170.0;

// Whether the projection reads what a hand on the result would change.
bool CanTurn(Projection projection);   // tilt and pan
bool CanRoll(Projection projection);   // the turn about the optical axis
bool CanWiden(Projection projection);  // the output's angle of view

// What is steered: a record with its own projection, and its photo's size.
struct Steered {
    ImageRecord image;
    PixelSize size;

    PixelSize ResultSize() const { return ResultSizeOf(image, size); }
};

// The place of the photo that the result shows at the point; nothing where it shows none.
std::optional<SourcePosition> PlaceUnder(const Steered& steered, const SourcePosition& point);

// Tilt and pan such that the result shows the place at the point, or as near to it as they reach.
// The roll stays.
ImageRecord TurnedTo(const Steered& steered, const SourcePosition& point,
                     const SourcePosition& place);
// The roll such that the point lies in the direction of the place from the optical axis.
ImageRecord RolledTo(const Steered& steered, const SourcePosition& point,
                     const SourcePosition& place);
// The angle of view, by steps of a wheel (positive is narrower), with what the result shows at the
// point.
ImageRecord WidenedAt(const Steered& steered, const SourcePosition& point, double steps);
// With what the result shows at the point in its middle.
ImageRecord CentredOn(const Steered& steered, const SourcePosition& point);

}  // namespace varnel
