// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From an image record and its frames to what the maps are made from. Throws nothing but where
// said.
#pragma once

#include "remap/projection/image_circle_geometry.h"
#include "remap/projection/maps/equidistance_map.h"
#include "remap/projection/maps/rectilinear_map.h"
#include "state/records/image_record.h"

namespace varnel {

struct Frames {
    SourceFrame source;
    OutputFrame output;
};

// Whether the lens states its optical axis for pictures of that shape (within 1 %).
bool HasCentreFor(const SampledLens& lens, PixelSize picture);

// For a photo of that size. The axis of a sampled lens that states it for such pictures is moved by
// the record's offsets; it is not rounded to whole pixels, nor are they. Without a wish the result
// is as large.
Frames FramesOf(const ImageRecord& image, PixelSize source, const OutputWish& wish = {});

// The record's lens for the maps; a sampled one's curve is in millimetres for each of its unit. An
// image circle's radius of 0 makes nothing of a curve in radii. Throws std::bad_alloc.
LensKind LensKindOf(const ImageRecord& image);
LensCurve LensCurveOf(const ImageRecord& image, LensColour colour = LensColour::Green);

RectilinearView RectilinearViewOf(const ImageRecord& image, const Frames& frames);
CameraMove CameraMoveOf(const ImageRecord& image);
EquidistanceView EquidistanceViewOf(const ImageRecord& image, const Frames& frames);
CircleView CircleViewOf(const ImageRecord& image, const Frames& frames);

}  // namespace varnel
