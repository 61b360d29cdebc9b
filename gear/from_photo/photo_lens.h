// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The catalogue's lenses that may have taken a photo. Throws nothing.
#pragma once

#include <QString>
#include <vector>

#include "gear/from_photo/photo_camera.h"
#include "remap/image/camera_info.h"

namespace varnel {

struct PhotoLenses {
    std::vector<CatalogueEntry> fitting;  // all that the photo's EXIF does not rule out
    CatalogueEntry lens;                  // the only possible one, if it can be identified
    bool isNamed = false;                 // the EXIF names a lens
};

// A lens without a name is identified by its focal length only where exactly one lens of the
// camera's maker, or else of the makers for every camera, has it; zoom lenses are not, because they
// share most of their range with ordinary lenses.
PhotoLenses LensesFromExif(const CameraInfo& origin, const CatalogueEntry& camera);

// Whether the file names a lens that neither calls itself a fisheye nor may be one of the
// catalogue.
bool NamesPlainLens(const CameraInfo& origin);

}  // namespace varnel
