// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/straight_rows.h"

#include <cmath>
#include <cstdlib>

namespace varnel {

SourceOffset StraightRows::At(int column, int row) const {
    if (column == 0) {
        return {0.0, HeightOf(row)};
    }
    if (Plain(row)) {
        return {static_cast<double>(column), 0.0};
    }
    return {column * Chord(row) / Radius(), HeightOf(row)};
}

SourceOffset StraightRows::OffsetAt(int x, int y) const {
    const auto [u, v] = At(std::abs(x), std::abs(y));
    return {x < 0 ? -u : u, y < 0 ? -v : v};
}

ResultLines StraightRows::Lines() const {
    ResultLines lines;
    for (std::int32_t n = 0; n < circle_.output.width; ++n) {
        lines.columns.push_back({ResultLine::Kind::Shown, n - circle_.outputCentre.x});
    }
    for (std::int32_t n = 0; n < circle_.output.height; ++n) {
        const int above = n - circle_.outputCentre.y;
        const bool black = Blank(std::abs(above));
        lines.rows.push_back({black ? ResultLine::Kind::Black : ResultLine::Kind::Shown, above});
    }
    return lines;
}

float StraightRows::ProgressMaximum() const {
    return static_cast<float>(std::fabs(circle_.outputShiftY) + circle_.outputUpperHalf);
}

}  // namespace varnel
