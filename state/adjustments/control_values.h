// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the main window's controls show of a record. The numbers are the record's own, with their
// fractions and beyond the sliders' ends; the sliders themselves hold whole numbers. Throws
// nothing.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "state/records/choice_id.h"
#include "state/records/image_record.h"
#include "state/records/slider_id.h"

namespace varnel {

struct ControlValues {
    int projection = 0;            // index of the OptionRemap button
    double inputAov = 0.0;         // degrees
    double outputAov = 0.0;        // degrees
    std::optional<double> effect;  // percent; empty for the projections without a slider for it
    double rotateX = 0.0;          // degrees
    double rotateY = 0.0;
    double rotateZ = 0.0;
    double translateX = 0.0;  // percent
    double translateY = 0.0;
    double paniniD = 100.0;  // percent
    double paniniSqueeze = 0.0;
    double unrollStart = 0.0;  // degrees
    double unrollFrom = 0.0;
    double unrollTo = 90.0;
    std::array<int, choiceCount> choices{1};  // by ChoiceId, see choice_table.h

    bool operator==(const ControlValues&) const = default;
    int Choice(ChoiceId id) const { return choices[static_cast<std::size_t>(id)]; }
    void Choose(ChoiceId id, int value) { choices[static_cast<std::size_t>(id)] = value; }
};

// A control with a field of its own: all but the effect, whose field the projection tells.
struct ControlField {
    SliderId id;
    double ControlValues::*control;
    float ImageRecord::*field;
    const char* name;     // of the field
    double factor = 1.0;  // the control's number for each of the field's
};

std::span<const ControlField> ControlFields();
// Null for the effect.
const ControlField* FieldOf(SliderId id);

// Not-a-number becomes 0, and so does the smallest effect, which stands for none.
ControlValues ValuesFor(const ImageRecord& image);

// Where a slider stands for a number: rounded to the nearest whole one, ties to even, within the
// range of int.
int WholeNumber(double value);
ControlValues Whole(const ControlValues& values);

// Writes the controls into the record and marks it as applied. The effect goes only to the chosen
// projection's field, and never below 0.1.
void StoreControls(const ControlValues& values, ImageRecord& image);
// The same for the projection and for those controls alone whose value is another one than they
// were filled with; what the others show stays in the record as it is.
void StoreChanged(const ControlValues& values, const ControlValues& filled, ImageRecord& image);

}  // namespace varnel
