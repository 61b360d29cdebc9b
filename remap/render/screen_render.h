// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The whole converted picture for the screen, as sharp as the saved one reduced to that size: from
// a photo that is reduced no further than that needs, drawn somewhat larger than it is shown and
// averaged. Rows count from the bottom row.
#pragma once

#include "remap/image/area_average.h"
#include "remap/projection/record_maps.h"

namespace varnel {

struct ScreenPlan {
    PixelSize photo;   // as it is
    PixelSize result;  // as it is saved
    PixelSize source;  // what the conversion reads: the photo itself where that is as large
    PixelSize drawn;   // the conversion before it is averaged

    bool Reduces() const { return source.width != photo.width; }
};

// For a result shown in that many pixels. Throws OverflowError.
ScreenPlan ScreenPlanFor(const ImageRecord& image, PixelSize photo, PixelSize shown);

// How the photo is reduced: its optical axis comes to the place that maps for the reduced size give
// it. Throws OverflowError.
AreaPlace ReducedPlace(const ImageRecord& image, const ScreenPlan& plan);
// The conversion's size, for the reduced photo.
OutputWish DrawnWish(const ImageRecord& image, const ScreenPlan& plan);
// What pixels of the shown picture cover of the drawn one. Throws OverflowError.
AreaPlace ShownPlace(const ImageRecord& image, const ScreenPlan& plan, PixelSize shown);

}  // namespace varnel
