// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The catalogue's lenses that may have taken a photo.
#pragma once

#include <QString>
#include <vector>

#include "gear/from_photo/photo_camera.h"
#include "remap/image/camera_info.h"

namespace varnel {

struct PhotoLenses {
    std::vector<CatalogueEntry> fitting;  // all that the photo's file does not speak against
    CatalogueEntry lens;                  // the one that it must have been, if that can be told
    bool isNamed = false;                 // the file tells a lens
};

// A lens without a name is found by its focal length only where one lens of the camera's maker, or
// else of those who make lenses for every camera, has it; zoom lenses are not found so, because
// what they share with ordinary lenses is most of their range.
PhotoLenses LensesFromExif(const CameraInfo& origin, const CatalogueEntry& camera);

}  // namespace varnel
