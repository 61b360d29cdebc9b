// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear that took a photo, as far as the photo's EXIF identifies it. Throws nothing.
#pragma once

#include <QString>
#include <optional>

#include "gear/catalogue/gear_catalogue.h"
#include "remap/image/camera_info.h"
#include "state/records/gear_record.h"

namespace varnel {

enum class GearLack {
    None,
    Origin,        // the file names no camera
    KnownCamera,   // the camera is not in the catalogue
    KnownLens,     // nor is the lens; most often it is no fisheye
    DefiniteLens,  // the file does not identify the lens
    OneGear,       // several gears of the table may have taken it
    DefinedGear,   // camera and lens are known, but no gear has them
};

struct PhotoGear {
    int gear = 0;  // number of the gear of the table that fits; 0 for none
    GearLack lack = GearLack::None;
    GearNames names;    // of the catalogues; parts that are not known are empty
    QString takenWith;  // "NIKON D7100, 10.5 mm f/2.8", as spelled in the file where possible
    QString said;       // why no gear of the table fits; empty when one does

    // Camera and lens are in the catalogues.
    bool IsWhole() const { return !names.cameraModel.isEmpty() && !names.lensModel.isEmpty(); }
};

// A gear of the table fits when its camera and its lens are the photo's. If the lens cannot be
// identified, the only gear of the camera with a possible lens fits.
PhotoGear GearOfPhoto(const CameraInfo& origin, const GearTable& table);

// What took the photo, if that is certain: the gear of the table, else the catalogue's.
std::optional<GearRecord> CertainGear(const PhotoGear& found, const GearTable& table);

// Whether the file speaks for the gear: its camera, and a lens that is not ruled out, such as a
// lens of one's own; of a camera that the catalogue does not have, the very lens.
bool SpeaksFor(const CameraInfo& origin, const GearRecord& gear);

}  // namespace varnel
