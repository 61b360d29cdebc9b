// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Varnel projection: every row of the image circle is stretched sideways to the circle's full
// width and stays at its own height.
#pragma once

#include "remap/projection/image_circle_geometry.h"
#include "remap/projection/pixel_map.h"

namespace varnel {

class VarnelMap {
  public:
    // Throws as MeasureCircle.
    explicit VarnelMap(const CircleView& view) : rows_(MeasureCircle(view)) {}
    // True for rows beyond the circle, which are black.
    bool Blank(int row) const { return static_cast<double>(rows_.radius) < row; }
    // column and row >= 0: the other three quarters are its mirror images. v is the row itself.
    SourceOffset At(int column, int row) const;
    // Half the circle's chord at a row >= 0, pixels: the offset that column R reads. Negative on
    // the row at the very edge, which is mirrored.
    double Chord(int row) const;
    // True for the row that is not stretched at all.
    bool Plain(int row) const { return row == 0; }
    const ImageCircleGeometry& Rows() const { return rows_; }

  private:
    ImageCircleGeometry rows_;
};

static_assert(PixelMap<VarnelMap>);

}  // namespace varnel
