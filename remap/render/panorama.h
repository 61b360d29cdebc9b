// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What results cover of the sphere. Throws std::bad_alloc only.
#pragma once

#include <optional>

#include "remap/image/panorama_info.h"
#include "remap/image/photo_metadata.h"
#include "remap/projection/frames.h"
#include "state/records/image_record.h"

namespace varnel {

// The angle of view (degrees) spans the frame before the crop, whose middle is the axis. Nothing
// for a layout of None and for a picture that reaches beyond the sphere.
std::optional<PanoramaInfo> PanoramaOf(PanoramaLayout layout, double degrees,
                                       const OutputFrame& frame);

// Where the camera looked, degrees clockwise from north; nothing when the photo does not say.
std::optional<double> HeadingOf(const PhotoMetadata& photo);

// A result of the projection, whose camera is turned from where the photo's looked. The record's
// own Projection is not looked at.
std::optional<PanoramaInfo> PanoramaOfResult(Projection projection, const ImageRecord& image,
                                             const OutputFrame& frame, const PhotoMetadata& photo);

}  // namespace varnel
