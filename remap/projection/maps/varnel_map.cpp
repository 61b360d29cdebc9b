// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/varnel_map.h"

#include <cmath>

namespace varnel {

double VarnelMap::Chord(int row) const {
    const double radius = static_cast<double>(rows_.radius);
    return radius * std::cos(ArcSin(row / radius));
}

SourceOffset VarnelMap::At(int column, int row) const {
    if (column == 0) {
        return {0.0, static_cast<double>(row)};
    }
    if (Plain(row)) {
        return {static_cast<double>(column), 0.0};
    }
    return {column * Chord(row) / static_cast<double>(rows_.radius), static_cast<double>(row)};
}

}  // namespace varnel
