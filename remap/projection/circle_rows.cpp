// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/circle_rows.h"

#include <cmath>
#include <cstdlib>

#include "base/rounding.h"
#include "remap/projection/last_writer.h"

namespace varnel {

CircleRows::CircleRows(const CircleView& view)
    : circle_(MeasureCircle(view)),
      // With a vertical shift the covered rows are lopsided: the lower bound is |dY| - Hc.
      firstRadius_(CLng(std::fabs(circle_.outputShiftY) - circle_.outputUpperHalf, "OfsetY")) {}

SourceOffset CircleRows::At(int column, int radius) const {
    const double theta = Angle(column);
    return {SourceRadius(radius) * std::cos(theta), SourceRadius(radius) * std::sin(theta)};
}

// The left half has the centre column.
SourceOffset CircleRows::OffsetAt(int x, int radius) const {
    const SourceOffset offset = At(std::abs(x), radius);
    return {x > 0 ? offset.u : -offset.u, offset.v};
}

ResultLines CircleRows::Lines() const {
    ResultLines lines;
    for (std::int32_t n = 0; n < circle_.output.width; ++n) {
        lines.columns.push_back({ResultLine::Kind::Shown, n - circle_.outputCentre.x});
    }
    const LastWriters owners(*this, circle_.output.height);
    for (std::int32_t row = 0; row < circle_.output.height; ++row) {
        if (owners.Black(row)) {
            lines.rows.push_back({ResultLine::Kind::Black, 0});
        } else if (owners.Nobody(row)) {
            lines.rows.push_back({});
        } else {
            lines.rows.push_back({ResultLine::Kind::Shown, owners.Radius(row)});
        }
    }
    return lines;
}

float CircleRows::ProgressMaximum() const {
    return static_cast<float>(std::fabs(circle_.outputShiftY) + 2.0 * circle_.outputUpperHalf);
}

float CircleRows::ProgressAt(int radius) const {
    return static_cast<float>(radius + circle_.outputUpperHalf);
}

}  // namespace varnel
