// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Horizon projection, for circles shot straight up or down: circles around the centre become
// rows, the angle around the centre becomes the column.
#pragma once

#include "remap/projection/circle_rows.h"

namespace varnel {

class HorizonMap : public CircleRows {
  public:
    // Throws as MeasureCircle, and when the row divisor is 0: pictures about three times as wide
    // as high.
    explicit HorizonMap(const CircleView& view);
    double Angle(int column) const override;
    std::int32_t OutputRow(int radius) const override;
    std::int32_t RowDivisor() const { return rowDivisor_; }

  private:
    double halfWidth_;  // columns of the result for half a turn
    std::int32_t rowDivisor_;
};

static_assert(PixelMap<HorizonMap>);

}  // namespace varnel
