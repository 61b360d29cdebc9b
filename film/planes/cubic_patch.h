// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Cubic polynomials across and down through the nodes around a cell. Throws nothing.
#pragma once

#include <algorithm>
#include <cmath>

#include "film/planes/cells.h"
#include "film/planes/node_lattice.h"

namespace varnel {

// What a map's own rounding may leave of a value that says how far inside something is.
inline constexpr double leastInside = 1e-7;

// The largest second difference at the corners of the cell.
double BendOf(const NodeLattice::Patch& patch);
// The largest fourth difference around it, endless where one is no number.
double FourthDifferenceOf(const NodeLattice::Patch& patch);

// Coefficients of the polynomial through four values at -1, 0, 1 and 2.
struct Cubic {
    std::array<double, 4> c;

    Cubic(double p0, double p1, double p2, double p3)
        : c{p1, p2 - p1 / 2.0 - (2.0 * p0 + p3) / 6.0, (p0 + p2) / 2.0 - p1,
            (p3 - p0) / 6.0 + (p1 - p2) / 2.0} {}
};

// The coefficients of x (from = 0) or y (from = 4) less its base.
void TakeCoefficients(const NodeLattice::Patch& patch, std::int32_t base, std::size_t from,
                      CellPolynomial& cell);

// Values at the samples of a cell, in double precision.
class CubicPatch {
  public:
    explicit CubicPatch(const NodeLattice::Patch& patch);
    double At(int row, int column) const;

  private:
    std::array<std::array<double, 4>, 4> c_;  // as in a CellPolynomial
};

}  // namespace varnel
