// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/screen_render.h"

#include <algorithm>
#include <cmath>

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

Place CentreOf(const OutputFrame& frame) {
    return {frame.size.width / 2 + frame.shift.x, frame.size.height / 2 + frame.shift.y};
}

}  // namespace

ScreenPlan ScreenPlanFor(PixelSize photo, PixelSize shown) {
    const PixelSize drawn = SizedTo(photo, shown.width * drawnPerShown);
    return {photo, SizedTo(photo, drawn.width * sourcePerDrawn), drawn};
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

OutputWish DrawnWish(const ScreenPlan& plan) {
    return [drawn = plan.drawn](const SourceFrame& source) { return Resized(source, drawn); };
}

AreaPlace ShownPlace(const ImageRecord& image, const ScreenPlan& plan, PixelSize shown) {
    const double scale = static_cast<double>(plan.drawn.width) / plan.photo.width;
    const Place whole = CentreOf(FramesOf(image, plan.photo).output);
    const Place drawn = CentreOf(FramesOf(image, plan.source, DrawnWish(plan)).output);
    const auto axis = [scale](double centre, double drawnCentre, double step) {
        return AreaAxis{drawnCentre + 0.5 - (centre + 0.5) * scale, step * scale};
    };
    return {axis(whole.x, drawn.x, static_cast<double>(plan.photo.width) / shown.width),
            axis(whole.y, drawn.y, static_cast<double>(plan.photo.height) / shown.height)};
}

}  // namespace varnel
