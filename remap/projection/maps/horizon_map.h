// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Horizon projection, for circles shot straight up or down: circles around the centre become
// rows, the angle around the centre becomes the column.
#pragma once

#include "remap/projection/image_circle_geometry.h"
#include "remap/projection/pixel_map.h"

namespace varnel {

class HorizonMap {
  public:
    // Throws as MeasureCircle, and when the row divisor is 0: pictures about three times as wide
    // as high.
    explicit HorizonMap(const CircleView& view);
    // True for radii beyond the circle; only positive ones can be.
    bool Blank(int radius) const { return static_cast<double>(rows_.radius) < radius; }
    // column >= 0 to the right of the centre (the left half is its mirror image), radius signed:
    // negative ones read the opposite side of the centre.
    SourceOffset At(int column, int radius) const;
    // The angle around the centre that a column >= 0 stands for, radians.
    double Angle(int column) const;
    // The output row that a radius is written to, counted from the bottom row of the bitmap.
    std::int32_t OutputRow(int radius) const;
    std::int32_t RowDivisor() const { return rowDivisor_; }
    std::int32_t FirstRadius() const { return firstRadius_; }
    const ImageCircleGeometry& Rows() const { return rows_; }

  private:
    ImageCircleGeometry rows_;
    std::int32_t rowDivisor_;
    std::int32_t firstRadius_;
};

static_assert(PixelMap<HorizonMap>);

}  // namespace varnel
