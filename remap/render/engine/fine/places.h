// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where on the photo the pixels of a result lie, how much of the photo they span, and which share
// of each shows any of it. Throws std::bad_alloc.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "base/line_range.h"
#include "remap/projection/projection_map.h"

namespace varnel {

// Of neighbouring pixels, all as long.
struct Places {
    std::vector<double> x, y;           // on the photo, pixels
    std::vector<float> scaleX, scaleY;  // pixels of the photo for one of the result, along its axes
    std::vector<float> share;           // of the photo, 0 to 1; where it is 0 the rest says nothing

    void Resize(std::size_t size) {
        x.resize(size);
        y.resize(size);
        scaleX.resize(size);
        scaleY.resize(size);
        share.resize(size);
    }
};

// A run of positions along a row of the map: x to x + count - 1 at y, which stands for a pixel so
// many positions high; they go to places from the at-th on.
struct PlaceRun {
    int x = 0;
    int y = 0;
    int count = 0;
    float height = 1.0F;
    std::size_t at = 0;
};

// Of some rows, with what they have in common. May be used by one thread only.
class PlaceRows {
  public:
    virtual ~PlaceRows() = default;
    virtual void Fill(const PlaceRun& run, Places& into) = 0;
};

class PlaceFinder {
  public:
    virtual ~PlaceFinder() = default;
    // For positions y of that range, each with the positions x across; for as long as this lives.
    // Several threads may ask.
    virtual std::unique_ptr<PlaceRows> RowsOf(LineRange across, LineRange up) const = 0;
};

// Runs begin at multiples of that many positions from the first across.
inline constexpr int placesStep = 64;

// The map has to outlive it. The photo's size tells which share of a pixel lies beside it, the
// result's how far apart a map is worked out.
std::unique_ptr<PlaceFinder> SmoothPlaces(const SmoothMap& map, PixelSize photo, PixelSize result);
std::unique_ptr<PlaceFinder> StraightRowPlaces(const StraightRows& map, PixelSize photo,
                                               LineRange across);
std::unique_ptr<PlaceFinder> CircleRowPlaces(const CircleRows& map, PixelSize photo,
                                             LineRange across);

// The share of a pixel that a photo's side has: the pixel lies at a position of it and spans scale
// of its pixels.
inline float ShareOnSide(double position, float scale, std::int32_t side) {
    const double wide = std::max(static_cast<double>(scale), 1e-3);
    if (std::min(position + 0.5, side - 0.5 - position) >= wide / 2.0) {
        return 1.0F;
    }
    const double low = std::clamp((position + 0.5) / wide + 0.5, 0.0, 1.0);
    const double high = std::clamp((side - 0.5 - position) / wide + 0.5, 0.0, 1.0);
    return static_cast<float>(low * high);
}

}  // namespace varnel
