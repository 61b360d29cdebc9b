// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/varnel_map.h"

#include <cmath>

#include "remap/rounding.h"

namespace varnel {

SourceOffset VarnelMap::At(int column, int row) const {
    const double radius = static_cast<double>(rows_.radius);
    const double phi =
        column == 0 ? static_cast<double>(row > 0 ? Pi / 2.0F : -Pi / 2.0F) : ArcSin(row / radius);
    if (phi == 0.0) {
        return {static_cast<double>(column), static_cast<double>(row)};
    }
    return {column * (radius * std::cos(phi)) / radius, static_cast<double>(row)};
}

}  // namespace varnel
