// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The views that the fine sampling is measured in, and the cameras that take their truth. Pixel
// positions count from the lower left; angles of views are in degrees, others in radians.
#pragma once

#include <numbers>
#include <string_view>

#include "remap/render/render.h"
#include "samples/light_shot.h"

namespace varnel::bench {

inline constexpr double pi = std::numbers::pi;

// A 15 mm equisolid lens on 36 x 24 mm.
ImageRecord WideRecord(float outputAov, SamplingKind sampling);
// A circle of 180 degrees that fills a square.
ImageRecord CircularRecord(SamplingKind sampling);

// Directions by the angle from the axis, for a distance from the middle in pixels; nothing beyond
// most.
RayAt AroundAxis(PixelSize size, const std::function<double(double)>& angleAt, double most);
// Of lenses with that focal length in pixels.
RayAt Equisolid(PixelSize size, double focal, double most);
RayAt Straight(PixelSize size, double focal);

// At full size, on one core.
BitmapHandle Converted(Projection projection, const ImageRecord& record, const Bitmap& photo,
                       const OutputWish& wish = {});

// Prints the seconds of the samplings at 24 megapixels, processor time on one core; of views whose
// names begin so.
void CompareTimes(std::string_view start);

}  // namespace varnel::bench
