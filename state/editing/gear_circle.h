// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Between a gear's image circle and the circle on a photo as it is shown. Throws nothing.
#pragma once

#include "base/record_array.h"
#include "remap/analysis/circle_finder.h"
#include "state/adjustments/frame_reading.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"

namespace varnel {

// The circle of a gear: offsets in thousandths of width and height of a picture stored in
// landscape, the ratio in percent.
struct GearCircle {
    float OfsetX = 0.0F;
    float OfsetY = 0.0F;
    float GearRatio = 0.0F;

    bool operator==(const GearCircle&) const = default;
};

// The numbers with which a gear puts the circle there, to a tenth.
GearCircle GearCircleFor(const ImageCircle& circle, const ImageRecord& image, PixelSize picture);

// Puts the circle there, which is measured on the record's picture and has a radius, as an
// adjustment of that photo alone: its numbers, and the piece of the gear's sensor that the picture
// shows. The angles of view follow unless they were moved by hand.
void PutCircle(const ImageCircle& circle, const GearRecord& gear, ImageRecord& image);
// The gear's circle and its whole sensor again, likewise.
void ResetCircle(const GearRecord& gear, ImageRecord& image);

// Makes it the gear's circle and that of all its photos that are not adjusted yet, and in any case
// that of image number current, which keeps its other settings. The gear then counts as adjusted.
// Where that image shows a piece of the sensor only, the circle's numbers are made for pictures of
// that piece: the gear keeps the piece as its own, and photos of another shape are left alone.
// Returns how many photos got it.
int TakeCircle(const GearCircle& circle, GearRecord& gear, RecordArray<ImageRecord>& images,
               int current);

// Replaces change.from in the table by change.to. False, and nothing is changed, when the table's
// gear of that name is not change.from: it was deleted or edited since.
bool ChangeGear(GearTable& table, const GearChange& change);

}  // namespace varnel
