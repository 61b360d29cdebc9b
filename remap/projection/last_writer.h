// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which radius of unrolled circles an output row shows in the end: its loops write some rows
// several times. Rows count from the bottom row. The constructor throws std::bad_alloc and
// OverflowError, the rest nothing.
#pragma once

#include <limits>
#include <vector>

#include "base/line_range.h"
#include "remap/projection/circle_rows.h"

namespace varnel {

// What an output row holds in the end, found out by writing whole rows in the order of the loops:
// first black on both sides of the centre row, then the radii upward, each of which writes one row,
// or beyond the circle black on both sides again.
class LastWriters {
  public:
    LastWriters(const CircleRows& map, std::int32_t height)
        : owners_(static_cast<std::size_t>(height), nobody) {
        const std::int32_t centre = map.Circle().outputCentre.y;
        const LineRange shown = OnPicture(centre, height, map.Circle().lastRow);
        for (int r = std::max(shown.first, 1); r <= shown.last; ++r) {
            Blacken(centre, r);
        }
        for (int r = map.Radii().first; r <= map.Radii().last; ++r) {
            if (map.Blank(r)) {
                Blacken(centre, r);
            } else {
                Take(map.OutputRow(r), r);
            }
        }
    }
    // Rows off the result have no radius; the other questions take rows 0 to height - 1 only.
    bool Has(std::int32_t row, int r) const { return Exists(row) && At(row) == r; }
    bool Black(std::int32_t row) const { return At(row) == black_; }
    // True for a row that no loop writes.
    bool Nobody(std::int32_t row) const { return At(row) == nobody; }
    // The radius of a row that is neither black nor unwritten.
    int Radius(std::int32_t row) const { return At(row); }

  private:
    static constexpr int nobody = std::numeric_limits<int>::min();
    static constexpr int black_ = nobody + 1;

    bool Exists(std::int32_t row) const {
        return row >= 0 && row < static_cast<std::int32_t>(owners_.size());
    }
    int At(std::int32_t row) const { return owners_[static_cast<std::size_t>(row)]; }
    void Take(std::int32_t row, int owner) {
        if (Exists(row)) {
            owners_[static_cast<std::size_t>(row)] = owner;
        }
    }
    void Blacken(std::int32_t centre, int r) {
        Take(centre + r, black_);
        Take(centre - r, black_);
    }
    std::vector<int> owners_;
};

}  // namespace varnel
