// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures in light, as a sensor takes them behind a lens that is not perfectly sharp: the truth
// that samplings are measured by. Throws std::bad_alloc.
#pragma once

#include <vector>

#include "base/block_runner.h"
#include "samples/fisheye_shot.h"

namespace varnel {

// Light of 0 to 1 for every direction; directions need not have length 1.
using LightScene = std::function<double(const Ray& direction)>;

// Patches of chance brightness with sharp borders, the smallest as wide as given, in radians, and
// larger ones; turned in all ways.
struct PatchScene {
    double smallest = 0.01;
    double operator()(const Ray& direction) const;
};

struct LightPicture {
    PixelSize size;
    std::vector<float> light;  // rows from the bottom

    float At(int x, int y) const {
        return light[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                     static_cast<std::size_t>(x)];
    }
};

// Over the squares of pixels, blurred by 0.4 pixels. Nothing seen gives black.
LightPicture TakeLight(const LightScene& scene, PixelSize size, const RayAt& rayAt,
                       BlockRunner& runner);

// In grey levels of 0 to 255 by the curve of sRGB.
double LevelOf(double light);
BitmapHandle Developed(const LightPicture& picture);

}  // namespace varnel
