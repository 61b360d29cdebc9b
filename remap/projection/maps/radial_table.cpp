// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/radial_table.h"

namespace varnel {

RadialTable::RadialTable(double low, double high, double tolerance,
                         const std::function<double(double)>& function, int pieces)
    : low_(low), perUnit_(pieces / (high - low)) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    const auto value = [&](double place) { return function(low + place / perUnit_); };
    pieces_.reserve(static_cast<std::size_t>(pieces));
    double first = value(0.0);
    for (int n = 0; n < pieces; ++n) {
        // The cubic through both ends and two points between; checked in the middle.
        const double p1 = value(n + 1.0 / 3.0);
        const double p2 = value(n + 2.0 / 3.0);
        const double last = value(n + 1.0);
        Piece piece{first, -5.5 * first + 9.0 * p1 - 4.5 * p2 + last,
                    9.0 * first - 22.5 * p1 + 18.0 * p2 - 4.5 * last,
                    -4.5 * first + 13.5 * p1 - 13.5 * p2 + 4.5 * last};
        const double middle = piece.c0 + 0.5 * (piece.c1 + 0.5 * (piece.c2 + 0.5 * piece.c3));
        if (!(std::fabs(middle - value(n + 0.5)) <= tolerance)) {
            piece = {none, none, none, none};
        }
        pieces_.push_back(piece);
        first = last;
    }
}

}  // namespace varnel
