// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the sliders of a photo show that has its gear and was not adjusted. Throws nothing.
#pragma once

#include "state/records/gear_record.h"
#include "state/records/image_record.h"
#include "state/records/slider_id.h"

namespace varnel {

// The record with the values that its gear gives: its angles of view, effects of 100 percent, no
// rotation and no shift. Where the table's gear of that name has other numbers than the record, a
// piece of the sensor for example, the angle of view follows from the record's own. Projection,
// gear and image circle stay.
ImageRecord UsualRecord(const ImageRecord& image, const GearTable& gears);

// Whether the slider's value, of the record's projection, is another one than the usual; the usual
// one rounded to a whole number is none.
bool IsUnusual(SliderId slider, const ImageRecord& image, const ImageRecord& usual);

// Gives the record the usual value of that slider.
void TakeUsual(SliderId slider, const ImageRecord& usual, ImageRecord& image);

}  // namespace varnel
