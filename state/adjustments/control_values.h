// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the main window's controls show of a record, in whole numbers as sliders hold them. Throws
// nothing.
#pragma once

#include <optional>

#include "state/records/image_record.h"

namespace varnel {

struct ControlValues {
    int projection = 0;         // index of the OptionRemap button
    int inputAov = 0;           // degrees
    int outputAov = 0;          // degrees
    std::optional<int> effect;  // percent; empty for the projections without a slider for it
    int rotateX = 0;            // degrees
    int rotateY = 0;
    int rotateZ = 0;
    int translateX = 0;  // percent
    int translateY = 0;

    bool operator==(const ControlValues&) const = default;
};

// Rounded to the nearest whole number, ties to even.
ControlValues ValuesFor(const ImageRecord& image);

// Writes the controls into the record and marks it as applied. The effect goes only to the chosen
// projection's field, and never below 0.1.
void StoreControls(const ControlValues& values, ImageRecord& image);

}  // namespace varnel
