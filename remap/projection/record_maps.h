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

// Of a result, pixels.
inline constexpr std::int32_t largestResultSide = 32767;
// Parts of a side that can be cut out: at least so much of 1.
inline constexpr double leastCrop = 0.001;

// Whether less than the whole frame is wanted.
bool IsCropped(const ImageRecord& image);
// The result of a photo of that size, after the crop, in pixels: as large as the photo where
// nothing else is wanted.
PixelSize ResultSizeOf(const ImageRecord& image, PixelSize photo);
// The record's view, crop and shape in a result of that size (of previews, too): OutputAOV spans
// the width of the frame before the crop.
OutputFrame OutputFrameOf(const ImageRecord& image, const SourceFrame& photo, PixelSize result);

// For a photo of that size. The axis of a sampled lens that states it for such pictures is moved by
// the record's offsets; it is not rounded to whole pixels, nor are they. Without a wish the result
// is what the record wants.
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
