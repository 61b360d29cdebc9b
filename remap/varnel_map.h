// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Varnel projection: every row of the image circle is stretched sideways to the circle's full
// width and stays at its own height.
#pragma once

#include "remap/circle_rows.h"
#include "remap/pixel_map.h"

namespace varnel {

class VarnelMap {
  public:
    // Throws as MeasureCircle.
    explicit VarnelMap(const CircleView& view) : rows_(MeasureCircle(view)) {}
    // True for rows beyond the circle, which are black.
    bool Blank(int row) const { return static_cast<double>(rows_.radius) < row; }
    // column and row >= 0: the other three quarters are its mirror images. v is the row itself.
    SourceOffset At(int column, int row) const;
    const CircleRows& Rows() const { return rows_; }

  private:
    CircleRows rows_;
};

static_assert(PixelMap<VarnelMap>);

}  // namespace varnel
