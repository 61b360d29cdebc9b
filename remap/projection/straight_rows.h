// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The maps that stretch the rows of the image circle sideways about its centre column and leave
// each at its height. Each offset is read along one row of the photo, and the four quarters are
// mirror images.
#pragma once

#include "remap/projection/image_circle_geometry.h"
#include "remap/projection/pixel_map.h"
#include "remap/projection/projection_map.h"

namespace varnel {

class StraightRows : public ProjectionMap {
  public:
    // What the row at a height shows to each side of the centre where the result has R columns,
    // pixels of the photo. Heights in pixels of the photo, not negative.
    virtual double ChordAt(double height) const = 0;

    // column and row >= 0, on the result: the other three quarters are mirror images.
    SourceOffset At(int column, int row) const;
    // True for rows beyond the circle, which are black.
    bool Blank(int row) const { return static_cast<double>(circle_.radius) < HeightOf(row); }
    // True for the row that is read as it is.
    bool Plain(int row) const { return row == 0 && circle_.scale == 1.0; }
    double Chord(int row) const { return ChordAt(HeightOf(row)); }
    // The row's distance from the centre on the photo.
    double HeightOf(int row) const { return row / circle_.scale; }
    // R on the result.
    double Radius() const { return static_cast<double>(circle_.radius) * circle_.scale; }
    const ImageCircleGeometry& Circle() const { return circle_; }

    SourceOffset OffsetAt(int x, int y) const override;
    ResultLines Lines() const override;
    PixelWindow Shown() const override { return circle_.shown; }
    float ProgressMaximum() const override;
    float ProgressAt(int row) const override { return static_cast<float>(row); }
    int LastLine() const override { return circle_.lastRow; }
    const StraightRows* AsStraightRows() const override { return this; }

  protected:
    // Throws as MeasureCircle.
    explicit StraightRows(const CircleView& view) : circle_(MeasureCircle(view)) {}

  private:
    ImageCircleGeometry circle_;
};

}  // namespace varnel
