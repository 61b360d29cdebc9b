// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// N, E, S, W and the angles from the axis on an unrolled result, drawn into its pixels: white
// strokes with a dark border, by distances to lines. Rows count from the bottom row. Throws
// std::bad_alloc only.
#pragma once

#include <string_view>
#include <vector>

#include "remap/image/bitmap.h"
#include "remap/projection/frames.h"
#include "state/records/image_record.h"

namespace varnel {

// From one point to another, in pixels of the result.
struct Stroke {
    double fromX = 0.0, fromY = 0.0;
    double toX = 0.0, toY = 0.0;

    double DistanceFrom(double x, double y) const;
};

class Marks {
  public:
    // None where the record wishes for none and for a projection whose columns are no azimuths. The
    // record's own Projection is not looked at.
    Marks(Projection projection, const ImageRecord& image, const OutputFrame& frame);

    bool Empty() const { return strokes_.empty(); }
    const std::vector<Stroke>& Strokes() const { return strokes_; }
    // Onto a row of the result that was just drawn, and nowhere else.
    void DrawRow(Bitmap& result, std::int32_t row) const;

  private:
    void AddDirections(const ImageRecord& image);
    void AddAngles(const ImageRecord& image);
    // Letters and digits, with their lower left corner there.
    void AddText(std::string_view text, double x, double y);
    double WidthOf(std::string_view text) const;
    void Add(const Stroke& stroke);

    OutputFrame frame_;
    double letter_ = 0.0;     // height of a letter, pixels
    double halfWidth_ = 0.0;  // of a stroke, pixels
    std::vector<Stroke> strokes_;
};

}  // namespace varnel
