// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the gear editor does to the scratch gear, element 0 of the table, and the ranges of its
// sliders. Sliders hold whole numbers: degrees, percent, thousandths. Throws nothing.
#pragma once

#include <QString>

#include "gear/catalogue/gear_catalogue.h"
#include "state/records/gear_record.h"

namespace varnel {

struct SliderRange {
    int minimum = 0;
    int maximum = 0;

    bool operator==(const SliderRange&) const = default;
};

inline constexpr SliderRange hAovRange{10, 280};
inline constexpr SliderRange ratioRange{10, 400};
inline constexpr SliderRange ofsetRange{-200, 200};

// The range, widened just enough to hold the value.
SliderRange Widened(SliderRange range, int value);

// The nearest whole number, ties to even; what is stored may be any number.
int SliderPosition(float value);

// Sets one of the gear's numbers to the user's value; the horizontal angle sets the vertical one,
// too, as it does when it is read back from the store.
void SetNumber(float GearRecord::*number, double value, GearRecord& gear);

// Gives a gear of a two-number lens A (millimetres) and B of its own; its angles follow.
void SetLensNumbers(float scale, float factor, GearRecord& gear);

// What the user has entered when the gear is confirmed.
struct GearEntry {
    QString typedName;  // without one the gear is named after its camera and lens
    GearNames names;
    bool isNew = false;  // a new gear gets a name of its own
};

// An adjusted gear keeps the numbers that it has, any other gets the catalogue's.
void DefineEditedGear(GearTable& table, const GearEntry& entry);

// Writes the known values of a gear that is to be defined into the gear: its names, its own ratio
// with the offsets, and its own angle; 0 for unknown ones. An angle that a slider rounded is the
// catalogue's.
void TakeKnown(const GearRecord& known, GearRecord& gear);

// Restores the catalogue's numbers: no adjustment, no offset of the image circle.
void DropAdjustments(GearRecord& gear);

}  // namespace varnel
