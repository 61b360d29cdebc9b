// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From an image record and the size of its bitmap to what the maps are made from.
#pragma once

#include "remap/projection/maps/equidistance_map.h"
#include "remap/projection/image_circle_geometry.h"
#include "remap/projection/maps/rectilinear_map.h"
#include "state/records/image_record.h"

namespace varnel {

RectilinearView RectilinearViewOf(const ImageRecord& image, PixelSize source);
CameraMove CameraMoveOf(const ImageRecord& image);
EquidistanceView EquidistanceViewOf(const ImageRecord& image, PixelSize source);
CircleView CircleViewOf(const ImageRecord& image, PixelSize source);

}  // namespace varnel
