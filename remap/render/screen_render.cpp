// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/screen_render.h"

#include <algorithm>
#include <cmath>

#include "remap/projection/projection_info.h"
#include "remap/render/result_size.h"

namespace varnel {

namespace {

// Against the saved picture reduced by means: 43 to 50 dB on photos of rooms, 37 to 45 on ones of
// leaves, where a bilinear reduction has 31 to 43. With 1 and 1 it is 3 to 5 dB less, with 2 and 2
// as much more.
constexpr double drawnPerShown = 1.5;  // pixels along a side
constexpr double sourcePerDrawn = 1.5;

// Of the picture's shape, and even: the maps go by half the width.
PixelSize SizedTo(PixelSize picture, double width) {
    if (width >= picture.width) {
        return picture;
    }
    const int even = std::max(2 * static_cast<int>(std::lround(width / 2.0)), 2);
    const double height = static_cast<double>(picture.height) * even / picture.width;
    return {even, std::max(static_cast<int>(std::lround(height)), 1)};
}

struct Place {
    double x = 0.0;
    double y = 0.0;
};

Place AxisOf(const SourceFrame& frame) {
    const PixelPosition centre = frame.Centre();
    return {centre.x + frame.fraction.x, centre.y + frame.fraction.y};
}

// The first four projections follow the photo's centre, the others have the frame's middle.
Place CentreOf(const ImageRecord& image, const Frames& frames) {
    const bool follows = InfoOf(ProjectionFromIndex(image.Projection)).basic;
    const OutputFrame frame = follows ? frames.output : frames.output.Centred();
    const CentreShift shift = frame.ShiftOnResult();
    return {frame.size.width / 2 + shift.x, frame.size.height / 2 + shift.y};
}

}  // namespace

// The photo's pixels go by those of the whole frame: a crop is as sharp as what it is cut from.
ScreenPlan ScreenPlanFor(const ImageRecord& image, PixelSize photo, PixelSize shown) {
    const PixelSize result = ResultSizeOf(image, photo);
    const PixelSize drawn = SizedTo(result, shown.width * drawnPerShown);
    const PixelSize whole = FramesOf(image, photo, AtSize(image, drawn)).output.Whole();
    return {photo, result, SizedTo(photo, whole.width * sourcePerDrawn), drawn};
}

AreaPlace ReducedPlace(const ImageRecord& image, const ScreenPlan& plan) {
    const double step = static_cast<double>(plan.photo.width) / plan.source.width;
    const Place from = AxisOf(FramesOf(image, plan.photo).source);
    const Place to = AxisOf(FramesOf(image, plan.source).source);
    const auto axis = [step](double at, double reduced) {
        return AreaAxis{at - step * reduced + 0.5 - step / 2.0, step};
    };
    return {axis(from.x, to.x), axis(from.y, to.y)};
}

OutputWish DrawnWish(const ImageRecord& image, const ScreenPlan& plan) {
    return AtSize(image, plan.drawn);
}

AreaPlace ShownPlace(const ImageRecord& image, const ScreenPlan& plan, PixelSize shown) {
    const double scale = static_cast<double>(plan.drawn.width) / plan.result.width;
    const Place whole = CentreOf(image, FramesOf(image, plan.photo));
    const Place drawn = CentreOf(image, FramesOf(image, plan.source, DrawnWish(image, plan)));
    const auto axis = [scale](double centre, double drawnCentre, double step) {
        return AreaAxis{drawnCentre + 0.5 - (centre + 0.5) * scale, step * scale};
    };
    return {axis(whole.x, drawn.x, static_cast<double>(plan.result.width) / shown.width),
            axis(whole.y, drawn.y, static_cast<double>(plan.result.height) / shown.height)};
}

}  // namespace varnel
