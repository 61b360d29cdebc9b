// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The pixels of a result by the positions that a map is asked for. Columns and rows count from the
// lower left. Throws std::bad_alloc.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "base/line_range.h"
#include "remap/projection/projection_map.h"

namespace varnel {

class ResultGrid {
  public:
    explicit ResultGrid(ResultLines lines) : rows_(std::move(lines.rows)) {
        bool any = false;
        for (const ResultLine& line : lines.columns) {
            if (line.kind == ResultLine::Kind::Shown) {
                across_.first = any ? std::min(across_.first, line.position) : line.position;
                across_.last = any ? std::max(across_.last, line.position) : line.position;
                any = true;
            }
        }
        columns_.assign(static_cast<std::size_t>(across_.Count()), nowhere);
        for (std::size_t n = 0; n < lines.columns.size(); ++n) {
            if (lines.columns[n].kind == ResultLine::Kind::Shown) {
                columns_[static_cast<std::size_t>(lines.columns[n].position - across_.first)] =
                    static_cast<std::int32_t>(n);
            } else {
                coversRows_ = false;
            }
        }
        for (std::size_t n = 0; n < columns_.size(); ++n) {
            isPlain_ = isPlain_ && columns_[n] == columns_[0] + static_cast<std::int32_t>(n) &&
                       columns_[n] != nowhere;
        }
    }

    static constexpr std::int32_t nowhere = -1;

    // The positions of all columns, from the first to the last.
    LineRange Across() const { return across_; }
    // Where a position is written; nowhere for one that is not.
    std::int32_t ColumnOf(int position) const {
        return columns_[static_cast<std::size_t>(position - across_.first)];
    }
    // Whether all columns of a row are written.
    bool CoversRows() const { return coversRows_; }
    // Whether neighbouring positions are written to neighbouring columns.
    bool IsPlain() const { return isPlain_; }
    const ResultLine& Row(std::int32_t row) const { return rows_[static_cast<std::size_t>(row)]; }
    // How many positions a row is high, at least 1: maps may leave some out.
    float StepAt(std::int32_t row) const {
        const std::int32_t last = static_cast<std::int32_t>(rows_.size()) - 1;
        const ResultLine& below = Row(std::max(row - 1, 0));
        const ResultLine& above = Row(std::min(row + 1, last));
        int most = 1;
        for (const ResultLine& next : {below, above}) {
            if (next.kind == ResultLine::Kind::Shown) {
                most = std::max(most, std::abs(next.position - Row(row).position));
            }
        }
        return static_cast<float>(most);
    }

  private:
    LineRange across_;
    std::vector<std::int32_t> columns_;  // by position
    std::vector<ResultLine> rows_;
    bool coversRows_ = true;
    bool isPlain_ = true;
};

}  // namespace varnel
