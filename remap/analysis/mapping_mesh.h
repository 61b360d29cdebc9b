// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A net of pixels of the converted picture with their places on the photo, close enough to measure
// areas and shapes by. The constructor throws std::bad_alloc, the rest nothing.
#pragma once

#include "remap/analysis/inverse_mapping.h"

namespace varnel {

struct GridCell {
    SourcePosition lowLeft, lowRight, topLeft, topRight;
};

class MappingMesh {
  public:
    // About so many columns; the rows are as far apart. The mapping has to outlive the net.
    explicit MappingMesh(const InverseMapping& places, int columns = 128);

    const InverseMapping& Places() const { return *places_; }
    // The output columns and rows of the net.
    const std::vector<int>& Columns() const { return columns_; }
    const std::vector<int>& Rows() const { return rows_; }
    // The place that is read there, also off the photo.
    const std::optional<SourcePosition>& At(std::size_t i, std::size_t j) const {
        return net_[j * columns_.size() + i];
    }
    // The cell whose lower left corner is (i, j). Nothing where a corner shows nothing.
    std::optional<GridCell> InnerCell(std::size_t i, std::size_t j) const;
    // The same, at the picture's border widened by half a pixel to where the outermost pixels end.
    std::optional<GridCell> Cell(std::size_t i, std::size_t j) const;

  private:
    std::optional<SourcePosition> Corner(std::size_t i, std::size_t j) const;

    const InverseMapping* places_;
    std::vector<int> columns_, rows_;
    std::vector<std::optional<SourcePosition>> net_;
};

}  // namespace varnel
