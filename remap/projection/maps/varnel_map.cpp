// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/varnel_map.h"

#include <cmath>

namespace varnel {

double VarnelMap::ChordAt(double height) const {
    const double radius = static_cast<double>(Circle().radius);
    return radius * std::cos(ArcSin(height / radius));
}

}  // namespace varnel
