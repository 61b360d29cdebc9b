// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A smooth function of one number as pieces of cubics. The lens formulas cost too much to be worked
// out for every node of a picture, and along a suitable argument they have no corners. The
// constructor throws std::bad_alloc and what the function throws, the rest nothing.
#pragma once

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace varnel {

class RadialTable {
  public:
    // Between low and high (low < high). A piece that misses the function by more than the
    // tolerance is left out.
    RadialTable(double low, double high, double tolerance,
                const std::function<double(double)>& function, int pieces = 128);

    // Not a number outside of the range and on pieces that were left out.
    double At(double argument) const {
        const double place = (argument - low_) * perUnit_;
        if (!(place >= 0.0 && place <= static_cast<double>(pieces_.size()))) {
            return std::numeric_limits<double>::quiet_NaN();
        }
        std::size_t n = static_cast<std::size_t>(place);
        n = n < pieces_.size() ? n : n - 1;
        const double t = place - static_cast<double>(n);
        const Piece& piece = pieces_[n];
        return ((piece.c3 * t + piece.c2) * t + piece.c1) * t + piece.c0;
    }

  private:
    struct Piece {
        double c0, c1, c2, c3;
    };
    double low_;
    double perUnit_;
    std::vector<Piece> pieces_;
};

}  // namespace varnel
