// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Cameras for the sample scenes: a fisheye with the numbers of a real lens, and any other lens as a
// function. Positions are in pixels; pixel (x, y) has its centre at exactly (x, y), as the
// conversions read it, and rows count from the bottom.
#pragma once

#include <functional>
#include <optional>

#include "remap/image/bitmap.h"
#include "samples/scene.h"

namespace varnel {

// A frame upright or across: up in the picture is up in the scene either way, as when the
// photographer turns the camera and the picture is then shown the right way up.
struct FisheyeShot {
    PixelSize size;
    double pixelsPerMillimetre = 0.0;
    double centreX = 0.0;  // the image circle's centre, pixels
    double centreY = 0.0;
    double circleRadius = 0.0;  // millimetres; black outside; 0 when the lens covers the frame
    LensKind kind = LensKind::Sin;
    LensCurve curve;
    int samples = 1;     // per side of a pixel
    double noise = 0.0;  // standard deviation in levels, the same noise at every call
};

// The direction that the lens shows at a position, by the inverse of LensRadius; nothing outside
// the circle and where the lens shows nothing.
std::optional<Ray> FisheyeRay(const FisheyeShot& shot, double x, double y);

// threads = 0 takes every core. The bytes do not depend on it.
BitmapHandle TakeFisheye(const Scene& scene, const FisheyeShot& shot, int threads = 0);

// The direction at a position of the picture; nothing gives black.
using RayAt = std::function<std::optional<Ray>(double x, double y)>;

// A picture through any lens. samples are taken per side of a pixel, evenly over its square.
BitmapHandle TakeView(const Scene& scene, PixelSize size, int samples, const RayAt& rayAt,
                      int threads = 0);

}  // namespace varnel
