// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear that took a photo, as far as the photo's file tells it.
#pragma once

#include <QString>

#include "gear/catalogue/gear_catalogue.h"
#include "remap/image/camera_info.h"
#include "state/records/gear_record.h"

namespace varnel {

enum class GearLack {
    None,
    Origin,       // the file does not tell what took the photo
    KnownCamera,  // the camera is not in the catalogue
    KnownLens,    // nor is the lens; most often it is no fisheye
    ToldLens,     // the file does not tell the lens well enough
    OneGear,      // several gears of the table may have taken it
    DefinedGear,  // camera and lens are known, but no gear has them
};

struct PhotoGear {
    int gear = 0;  // the one of the table that fits; 0 for none
    GearLack lack = GearLack::None;
    GearNames names;    // of the catalogues; parts that are not known are empty
    QString takenWith;  // "NIKON D7100, 10.5 mm f/2.8", in the file's words where it has some
    QString said;       // why no gear of the table fits; empty when one does

    // Camera and lens are in the catalogues.
    bool IsWhole() const { return !names.cameraModel.isEmpty() && !names.lensModel.isEmpty(); }
};

// A gear of the table fits when its camera and its lens are the photo's. While the lens cannot be
// told, the only gear of the camera with a lens that may have been it fits.
PhotoGear GearOfPhoto(const CameraInfo& origin, const GearTable& table);

}  // namespace varnel
