// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where each pixel of a result is read, exactly as the conversion of a photo reads it. Rows count
// from the top row. Constructing throws what maps throw, the rest nothing.
#pragma once

#include <optional>

#include "remap/analysis/inverse_mapping.h"

namespace varnel {

class MapPlaces {
  public:
    MapPlaces(Projection projection, const ImageRecord& image, PixelSize source);

    PixelSize SourceSize() const { return mapping_.SourceSize(); }
    PixelSize ResultSize() const { return mapping_.ResultSize(); }
    // Nothing where nothing is shown. Pixels that no loop writes have their own place of a source
    // as large as the result.
    std::optional<SourcePosition> At(int column, int row) const;

    // A smooth map whose columns and rows follow each other without a gap where they are shown;
    // null for any other.
    const SmoothMap* Smooth() const { return smooth_; }
    // What its map is asked for at column 0 and at row 0, and that it grows to the right and
    // upward.
    int FirstX() const { return firstX_; }
    int FirstY() const { return firstY_; }
    // The columns and rows first to end - 1 that are shown.
    struct Shown {
        int first = 0, end = 0;
    };
    Shown Columns() const { return columns_; }
    Shown Rows() const { return rows_; }
    // Of an offset of the map.
    SourcePosition PlaceOf(double u, double v) const {
        return {mapping_.Centre().x + u, SourceSize().height - 1 - (mapping_.Centre().y + v)};
    }

  private:
    InverseMapping mapping_;
    bool readsWholeRows_;
    const SmoothMap* smooth_ = nullptr;
    Shown columns_, rows_;
    int firstX_ = 0;
    int firstY_ = 0;
};

}  // namespace varnel
