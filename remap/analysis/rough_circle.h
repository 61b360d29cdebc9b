// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What both steps of the search for the image circle share. Points as in circle_finder.h.
// FindRoughCircle throws std::bad_alloc, the rest nothing.
#pragma once

#include <algorithm>
#include <cmath>

#include "remap/analysis/circle_finder.h"

namespace varnel {

// Quicker than std::hypot, which provides for numbers that do not occur here.
inline double Length(double x, double y) {
    return std::sqrt(x * x + y * y);
}

// Reads a grey picture, which has to outlive it and to be two pixels wide and high at least.
class Grey {
  public:
    explicit Grey(const GreyPicture& picture) : picture_(picture) {}
    int Width() const { return picture_.size.width; }
    int Height() const { return picture_.size.height; }
    double Longer() const { return std::max(Width(), Height()); }
    int Pixel(int x, int y) const {
        return picture_.values[static_cast<std::size_t>(y) * static_cast<std::size_t>(Width()) +
                               static_cast<std::size_t>(x)];
    }
    bool Has(double x, double y) const {
        return x >= 0.5 && y >= 0.5 && x <= Width() - 0.5 && y <= Height() - 0.5;
    }
    // Between the pixels; the point has to be in the picture.
    double At(double x, double y) const {
        const int column = std::clamp(static_cast<int>(x - 0.5), 0, Width() - 2);
        const int row = std::clamp(static_cast<int>(y - 0.5), 0, Height() - 2);
        const double right = x - 0.5 - column;
        const double down = y - 0.5 - row;
        const double top = Pixel(column, row) * (1.0 - right) + Pixel(column + 1, row) * right;
        const double bottom =
            Pixel(column, row + 1) * (1.0 - right) + Pixel(column + 1, row + 1) * right;
        return top * (1.0 - down) + bottom * down;
    }

  private:
    const GreyPicture& picture_;
};

// Whether size and place are those of an image circle.
bool MayBe(const ImageCircle& circle, const Grey& grey);

struct RoughCircle {
    ImageCircle circle;
    double share = 0.0;      // of the rim that the picture shows
    double leastStep = 0.0;  // grey levels that made an edge
};

// To about a pixel. By strong edges where they make most of a rim, or else by the strength that
// shows most of one: stray light and a mask around the picture are faint, and so is a rim under
// dark trees.
RoughCircle FindRoughCircle(const Grey& grey);

}  // namespace varnel
