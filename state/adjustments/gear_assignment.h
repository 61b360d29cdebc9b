// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How gears are assigned to photos, and one photo's settings to all others. Throws nothing.
#pragma once

#include <QString>

#include "base/record_array.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"

namespace varnel {

// Defaults of a gear: percent, and degrees by the photo's angle of view and its projection, some of
// which show much more than a usual photo has.
inline constexpr float usualEffect = 100.0F;
float UsualOutputAov(const ImageRecord& image);

// Gives the record the projection, and where it has the usual output angle of view that of the
// projection.
void TakeProjection(Projection projection, ImageRecord& image);

// Copies the gear's names and numbers but for its angles of view. No adjustment is touched.
void CopyGear(const GearRecord& gear, ImageRecord& image);

// Copies the gear's names and numbers and resets angles of view and effects to the gear's defaults;
// rotation and translation stay. The gear's centre is meant for a picture stored in landscape: for
// one stored upright its offsets change places, and then they turn with the picture. Where the
// gear's sampled lens states another scale for pictures of that shape, the sensor's sides are those
// of the piece that they show. A record whose settings were applied is left alone: false.
bool AssignGear(const GearRecord& gear, ImageRecord& image);

// The gear that gave the record its numbers, as far as it follows from them: its angle of view only
// from a landscape record, and as it was refined there.
GearRecord GearOf(const ImageRecord& image);

// False for a record that may name a gear, but was never given one's numbers.
bool HasGearNumbers(const ImageRecord& image);

// The circle's centre beside the picture's: thousandths of width and height, positive to the right
// and toward the bottom.
struct CentreOffset {
    float x = 0.0F;
    float y = 0.0F;
};
// Where it is once the picture as it is stored was turned by its EXIF orientation.
CentreOffset Turned(const CentreOffset& stored, int orientation);

// Where a gear's centre, which is meant for a picture stored in landscape, is on the record's
// picture as it is shown, and back.
CentreOffset ShownCentre(const CentreOffset& gear, const ImageRecord& image);
CentreOffset GearCentre(const CentreOffset& shown, const ImageRecord& image);

// Moves the record's centre offsets with a picture that is shown turned by this orientation
// instead of the record's; not when that is none.
void TurnCentre(ImageRecord& image, int orientation);

// Only notes the name and reopens every record for the gear; its numbers follow when it is
// assigned.
void ApplyGearToAll(RecordArray<ImageRecord>& images, const QString& gearName);

// Copies everything but size, orientations, file, name suffix and what films have. Centre offsets
// go as they stand onto a record of the other orientation, too.
void CopySettings(const ImageRecord& from, ImageRecord& to);
// From the current image to all.
void ApplySettingsToAll(RecordArray<ImageRecord>& images, int current);

}  // namespace varnel
