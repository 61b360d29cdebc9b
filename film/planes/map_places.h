// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where each pixel of a result is read, exactly as the conversion of a photo reads it. Rows count
// from the top row. Constructing throws what maps throw, the rest nothing but for want of memory.
#pragma once

#include <optional>
#include <span>

#include "film/planes/circle_cell.h"
#include "remap/analysis/inverse_mapping.h"
#include "remap/projection/smooth_map.h"

namespace varnel {

class MapPlaces {
  public:
    MapPlaces(Projection projection, const ImageRecord& image, PixelSize source);

    PixelSize SourceSize() const { return mapping_.SourceSize(); }
    PixelSize ResultSize() const { return mapping_.ResultSize(); }
    // Those of a row from a column on; x is not a number where nothing is shown. Pixels that no
    // loop writes have their own place of a source as large as the result.
    void Row(int row, int firstColumn, std::span<SourcePosition> places) const;
    SourcePosition At(int column, int row) const;
    // The cell from a column and a row on where the map unrolls circles and shows all of the cell.
    std::optional<CircleCell> CircleCellAt(int left, int top) const;

    // Whether positions between those of the result exist, that is, the columns and rows that are
    // shown follow each other without a gap and no row of the photo is read as a whole.
    bool IsSmooth() const { return isSmooth_; }
    // These take runs in the map's own positions, and are there where it is smooth.
    std::unique_ptr<SmoothNodes> Nodes() const;
    int FirstX() const { return firstX_; }  // of column 0; the next one's is larger
    int FirstY() const { return firstY_; }  // of row 0; the next one's is less
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
    void TakeRuns();
    void TakeCircles();
    SourcePosition OnWholeRow(SourcePosition place) const;

    InverseMapping mapping_;
    bool readsWholeRows_;
    bool isSmooth_ = false;
    Shown columns_, rows_;
    int firstX_ = 0;
    int firstY_ = 0;
    // By columns and rows, of maps that unroll circles; not a number where nothing is shown.
    std::vector<double> cosines_, sines_, radii_;
};

}  // namespace varnel
