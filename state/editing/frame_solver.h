// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Steering a conversion by the frame that it cuts out of the photo: which slider a handle moves and
// which value puts it nearest to where it is wanted. Positions as in
// remap/analysis/inverse_mapping.h.
#pragma once

#include <optional>
#include <span>

#include "remap/analysis/inverse_mapping.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/slider_table.h"

namespace varnel {

// The slider that makes the frame wider; nothing for a projection without one.
std::optional<SliderId> FrameSlider(Projection projection);
// Whether the frame can be panned and tilted.
bool FrameTurns(Projection projection);

// Points of the border that the slider moves.
std::span<const FramePoint> FrameHandles(Projection projection);
// Where the photo is read for the point; nothing where the border is black.
std::optional<SourcePosition> PlaceOf(const FramePoint& point, const InverseMapping& places);

// What is steered: the record as stored, the controls over it and the photo's size.
struct FrameSetting {
    const ImageRecord& image;
    ControlValues controls;
    PixelSize size;
};

// A whole number within the control's reach; the value at hand when no other is nearer or the
// projection has no such slider.
double WidthNearest(const FrameSetting& setting, const FramePoint& handle,
                    const SourcePosition& wanted);
// The controls with the turns that bring the middle of the frame nearest to the wanted position.
// Throws nothing: numbers without a conversion are passed over, as in WidthNearest.
ControlValues TurnedNearest(const FrameSetting& setting, const SourcePosition& wanted);

}  // namespace varnel
