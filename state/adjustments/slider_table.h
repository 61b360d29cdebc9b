// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The sliders of the main window in one table: names, ranges, captions and the control value
// that each one holds. Throws nothing.
#pragma once

#include <QString>
#include <array>
#include <optional>

#include "state/adjustments/control_values.h"
#include "state/records/slider_id.h"

namespace varnel {

// Which projections show a slider: those that use it, or all.
enum class ShownFor { Users, Always };

struct SliderRowData {
    SliderId id;
    const char* slider;  // object names
    const char* valueLabel;
    const char* headingLabel;     // null for none
    const char* heading;          // text of the heading label
    const char* startCaption;     // text of the value label before the first photo
    const char* tip;              // tool tip and accessible description
    int minimum, maximum, start;  // see RangeOf
    int largeChange, smallChange, tickInterval;
    const char* positive;  // what follows the number in the caption
    const char* negative;  // after the magnitude of a negative number; null: as positive
    const char* zero;      // the whole caption at 0; null: as positive
    bool resets;           // a double-click on the heading sets it to 0
    ShownFor shownFor;
    const char* group = nullptr;  // the title above it and its neighbours; null for none
};

const std::array<SliderRowData, sliderCount>& SliderRows();

// Empty for none.
QString GroupName(SliderId id);
// A name that no other slider has: the heading, after the group's name if there is one.
QString SpokenName(const SliderRowData& row);

// The value label's text for a value; one that is not whole has one decimal.
QString SliderCaption(const SliderRowData& row, double value);

const SliderRowData& SliderRowOf(SliderId id);
// The slider's range, or the projection's own where it has one.
ControlRange RangeOf(SliderId id, Projection projection);
// How far the control goes by keyboard and on the picture: at least as far as the slider.
ControlRange ReachOf(SliderId id, Projection projection);
bool ShownWith(const SliderRowData& row, Projection projection);
// Whether the projection reads what the slider stands for. The main window shows the angle of the
// lens always and the effect of Horizon never.
bool Reads(Projection projection, SliderId id);

// A number within the control's reach: the nearest one, or where the camera can be turned all round
// the same direction.
double WithinReach(SliderId id, Projection projection, double value);
// What a projection that is chosen makes of the values: those that it cannot show give way.
void FitTo(Projection projection, ControlValues& values);

// The slider's value among the control values; nothing for the effect when there is none.
std::optional<double> ValueOf(SliderId id, const ControlValues& values);
void SetValueOf(SliderId id, double value, ControlValues& values);

}  // namespace varnel
