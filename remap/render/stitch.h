// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Two fisheye photos that look into opposite directions as one equirectangular picture of the whole
// sphere. Throws as Render and std::bad_alloc.
#pragma once

#include <cstdint>
#include <utility>

#include "remap/render/render.h"

namespace varnel {

// A photo of one of two circles with its lens; the record's turns are those of the front.
struct StitchHalf {
    BitmapHandle photo;
    ImageRecord record;
};

struct StitchPlan {
    std::int32_t width = 0;  // of the result, even; it is half as high
    double overlap = 4.0;    // degrees around the seam over which the photos are blended
};

// The left and the right half of a picture that is wider than high, otherwise the upper and the
// lower one. Throws std::bad_alloc.
std::pair<BitmapHandle, BitmapHandle> SplitInTwo(const Bitmap& picture);

// The width at which the middle of the result's horizon has the resolution of the lens there, even
// and at most 32766. Throws RunTimeError for numbers that make no lens.
std::int32_t NaturalWidth(const ImageRecord& record, PixelSize photo);

// The result has the front photo's metadata. The back photo is turned half around the upright axis;
// both are brightened or darkened, each colour by itself, to meet at the seam.
BitmapHandle Stitch(StitchHalf front, StitchHalf back, const StitchPlan& plan,
                    RenderProgress& progress, BlockRunner* runner = nullptr);

}  // namespace varnel
