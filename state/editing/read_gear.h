// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a photo gets from its own file: the gear that its EXIF names with certainty or a guess, and
// the piece of the sensor that it shows. Circles are in pixels of the record's picture. Throws
// std::bad_alloc only.
#pragma once

#include <optional>
#include <vector>

#include "remap/image/camera_info.h"
#include "state/adjustments/frame_reading.h"
#include "state/records/gear_record.h"
#include "state/records/image_record.h"

namespace varnel {

struct PhotoReading {
    CameraInfo origin;
    std::optional<FoundCircle> circle = {};
};

// Whether the record has what adding and looking at a photo bring, and nothing else: no gear or the
// table's default gear, no adjustments.
bool IsUntouched(const ImageRecord& image, const GearTable& table);

// What a photo got that was added.
enum class ReadGear {
    Same,   // what it has: its own gear already, or a lens that is no fisheye
    Own,    // the gear that the EXIF names
    Guess,  // a typical fisheye
};

// For an untouched record of which the size is known. A gear that the table does not have is added
// to it, and to newGears. The default gear stays where the file speaks for it.
ReadGear GiveReadGear(const PhotoReading& reading, GearTable& table,
                      std::vector<GearRecord>& newGears, ImageRecord& image);

// Gives the record the gear, whatever it had, and the piece of its sensor that the picture shows.
// Rotation and translation stay.
FrameReading GiveGearAndFrame(const GearRecord& gear, const std::optional<FoundCircle>& circle,
                              ImageRecord& image);

bool IsGuessed(const ImageRecord& image);

// The two ways to see the picture of a gear.
enum class FrameUse {
    Only,      // they are the same, or the record's circle is neither's
    AsGear,    // the whole sensor with the gear's circle, though the picture says otherwise
    AsPicture  // the piece of the sensor and the circle that the picture shows
};
struct FrameChoice {
    FrameUse use = FrameUse::Only;
    FrameReading reading;  // of the picture
    ImageRecord other;     // the record seen in the other way
};
FrameChoice FrameChoiceOf(const GearRecord& gear, const std::optional<FoundCircle>& circle,
                          const ImageRecord& image);

}  // namespace varnel
