// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Source positions of a smooth map at the corners of all cells, and around the result as many more
// as polynomials need. Rows count from the top row. Throws std::bad_alloc.
#pragma once

#include <span>
#include <vector>

#include "base/block_runner.h"
#include "film/planes/map_places.h"

namespace varnel {

class NodeLattice {
  public:
    // The places are smooth. The memory of an earlier lattice is used again.
    void Fill(const MapPlaces& places, BlockRunner& runner);

    // Values at six nodes by six: [2][2] is the cell's upper left corner.
    class Patch {
      public:
        Patch(const double* first, std::ptrdiff_t pitch) : first_(first), pitch_(pitch) {}
        double At(int row, int column) const { return first_[row * pitch_ + column]; }

      private:
        const double* first_;
        std::ptrdiff_t pitch_;
    };
    Patch X(int cellColumn, int cellRow) const { return PatchOf(x_, cellColumn, cellRow); }
    Patch Y(int cellColumn, int cellRow) const { return PatchOf(y_, cellColumn, cellRow); }
    // See NodeValues; only of maps that have an edge.
    bool HasEdge() const { return !inside_.empty(); }
    Patch Within(int cellColumn, int cellRow) const {
        return PatchOf(inside_, cellColumn, cellRow);
    }

  private:
    Patch PatchOf(const std::vector<double>& values, int cellColumn, int cellRow) const {
        return {values.data() + static_cast<std::ptrdiff_t>(cellRow) * columns_ + cellColumn,
                columns_};
    }

    std::ptrdiff_t columns_ = 0;
    std::vector<double> x_, y_, inside_;
};

}  // namespace varnel
