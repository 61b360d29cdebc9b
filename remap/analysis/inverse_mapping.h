// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where on the photo each pixel of the converted picture comes from, as the conversions read it at
// full size. Positions are in pixels: pixel (x, y) has its centre at exactly (x, y), rows count
// from the bottom row.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "remap/projection/projection_map.h"
#include "remap/projection/record_maps.h"

namespace varnel {

struct SourcePosition {
    double x = 0.0;
    double y = 0.0;
};

struct PhotoCircle {
    SourcePosition centre;
    double radius = 0.0;

    bool Holds(const SourcePosition& place) const;
};

// The image circle by the record's offsets and ratio; nothing when the ratio is 0 or below. Throws
// RunTimeError when a value overflows.
std::optional<PhotoCircle> PhotoCircleOf(const ImageRecord& image, PixelSize size);

class InverseMapping {
  public:
    // The record's own Projection is not looked at; without a wish the result is as large as the
    // photo. Throws as the conversion does.
    InverseMapping(Projection projection, const ImageRecord& image, PixelSize size,
                   const OutputWish& wish = {});

    // Nothing where the result is black or not written and where the position is off the photo.
    std::optional<SourcePosition> At(int column, int row) const;
    // The position that is read, also one off the photo, where a read gives black.
    std::optional<SourcePosition> ReadAt(int column, int row) const;
    // True for pixels that no loop writes: they keep what the photo has there.
    bool Untouched(int column, int row) const;
    // Nearer to one of the photo's pixels than to what lies outside.
    bool InPicture(const SourcePosition& place) const;
    // Without a circle nothing is outside it.
    bool InCircle(const SourcePosition& place) const { return !circle_ || circle_->Holds(place); }
    const std::optional<PhotoCircle>& Circle() const { return circle_; }

    // The columns and rows that show the photo, ascending. A translation by half pixels leaves
    // every other one out.
    const std::vector<int>& Columns() const { return columns_; }
    const std::vector<int>& Rows() const { return rows_; }
    // What the positions come from: the map, its lines with those beside what it is for black, and
    // where on the photo its offsets count from.
    const ProjectionMap& Map() const { return *map_; }
    const ResultLines& Lines() const { return lines_; }
    const SourcePosition& Centre() const { return centre_; }
    PixelSize SourceSize() const { return sourceSize_; }
    PixelSize ResultSize() const { return resultSize_; }
    // Whether the photo's middle is a whole row of the result, around which the rest is unrolled.
    bool IsUnrolled() const { return map_->AsCircleRows() != nullptr; }

  private:
    PixelSize sourceSize_;
    PixelSize resultSize_;
    SourcePosition centre_;
    std::optional<PhotoCircle> circle_;
    std::unique_ptr<ProjectionMap> map_;
    ResultLines lines_;
    std::vector<int> columns_, rows_;
};

}  // namespace varnel
