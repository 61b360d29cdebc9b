// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The maps that unroll circles around the centre of the image circle into rows: the angle around
// the centre becomes the column. The left half is the mirror image of the right one and written
// last.
#pragma once

#include "base/line_range.h"
#include "remap/projection/image_circle_geometry.h"
#include "remap/projection/pixel_map.h"
#include "remap/projection/projection_map.h"

namespace varnel {

class CircleRows : public ProjectionMap {
  public:
    // The angle around the centre that a column >= 0 stands for, radians.
    virtual double Angle(int column) const = 0;
    // The output row that a radius is written to, counted from the bottom row of the bitmap. Throws
    // OverflowError.
    virtual std::int32_t OutputRow(int radius) const = 0;

    // column >= 0 to the right of the centre, radius in pixels of the result and signed: negative
    // ones read the opposite side of the centre.
    SourceOffset At(int column, int radius) const;
    // True for radii beyond the circle; only positive ones can be.
    bool Blank(int radius) const {
        return static_cast<double>(circle_.radius) < SourceRadius(radius);
    }
    // The radius in pixels of the photo.
    double SourceRadius(int radius) const { return radius / circle_.scale; }
    // In the order in which they are written.
    LineRange Radii() const { return {firstRadius_, circle_.lastRow}; }
    const ImageCircleGeometry& Circle() const { return circle_; }

    SourceOffset OffsetAt(int x, int radius) const override;
    ResultLines Lines() const override;
    PixelWindow Shown() const override { return circle_.shown; }
    float ProgressMaximum() const override;
    float ProgressAt(int radius) const override;
    int LastLine() const override { return circle_.lastRow; }
    const CircleRows* AsCircleRows() const override { return this; }

  protected:
    // Throws as MeasureCircle.
    explicit CircleRows(const CircleView& view);

  private:
    ImageCircleGeometry circle_;
    std::int32_t firstRadius_;
};

}  // namespace varnel
