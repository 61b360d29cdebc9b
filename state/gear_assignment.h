// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How gears reach photos, and how one photo's settings reach all others.
#pragma once

#include <QString>

#include "gear/gear_record.h"
#include "state/image_record.h"
#include "state/record_array.h"

namespace varnel {

// Copies the gear's names and numbers and resets angles of view and effects to the gear's defaults;
// rotation and translation stay. A record whose settings were applied is left alone: false.
bool AssignGear(const GearRecord& gear, ImageRecord& image);

// Only notes the name and reopens every record for the gear; its numbers follow when it is
// assigned.
void ApplyGearToAll(RecordArray<ImageRecord>& images, const QString& gearName);

// Copies everything but size, orientation, file and name suffix from the current image to all.
// Centre offsets go as they stand onto records of the other orientation, too.
void ApplySettingsToAll(RecordArray<ImageRecord>& images, int current);

}  // namespace varnel
