// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Finds the image circle of a fisheye photo: the rim between the picture and the dark around it.
// Points are in pixels from the top left corner, y down; the first pixel's middle is at 0.5. Throws
// std::bad_alloc only.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/pixel_size.h"

namespace varnel {

// Top row first, a byte a pixel.
struct GreyPicture {
    PixelSize size;
    std::vector<std::uint8_t> values;
};

struct ImageCircle {
    double x = 0.0;
    double y = 0.0;
    double radius = 0.0;
};

struct FoundCircle : ImageCircle {
    double error = 0.0;  // of centre and radius, pixels; about one standard deviation
    bool rough = false;  // the scene is dark at the rim: it was found from the light inside alone
};

// A width of about 1000 pixels is enough. Nothing when the picture has no such rim, as those of
// lenses that fill the frame. The same picture always gives the same circle.
std::optional<FoundCircle> FindImageCircle(const GreyPicture& picture);

}  // namespace varnel
