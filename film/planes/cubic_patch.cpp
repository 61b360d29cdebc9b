// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/cubic_patch.h"

namespace varnel {

namespace {

using Patch = NodeLattice::Patch;
using Coefficients = std::array<std::array<double, 4>, 4>;

// Calls the function with six values along each of the four lines that border the cell.
template <class Function>
void ForEachLine(const Patch& patch, const Function& function) {
    for (int line = 2; line <= 3; ++line) {
        function([&](int n) { return patch.At(line, n); });
        function([&](int n) { return patch.At(n, line); });
    }
}

// [m][n] belongs to the m-th power down and the n-th across.
Coefficients CoefficientsOf(const Patch& patch, double base) {
    Coefficients across;
    for (int row = 0; row < 4; ++row) {
        const auto at = [&](int column) { return patch.At(row + 1, column) - base; };
        across[static_cast<std::size_t>(row)] = Cubic(at(1), at(2), at(3), at(4)).c;
    }
    Coefficients both;
    for (std::size_t n = 0; n < 4; ++n) {
        const Cubic down(across[0][n], across[1][n], across[2][n], across[3][n]);
        for (std::size_t m = 0; m < 4; ++m) {
            both[m][n] = down.c[m];
        }
    }
    return both;
}

}  // namespace

double BendOf(const Patch& patch) {
    double most = 0.0;
    ForEachLine(patch, [&](const auto& at) {
        most = std::max(
            {most, std::fabs(at(1) - 2.0 * at(2) + at(3)), std::fabs(at(2) - 2.0 * at(3) + at(4))});
    });
    return most;
}

double FourthDifferenceOf(const Patch& patch) {
    double most = 0.0;
    ForEachLine(patch, [&](const auto& at) {
        for (int n = 0; n < 2; ++n) {
            const double fourth =
                at(n) - 4.0 * at(n + 1) + 6.0 * at(n + 2) - 4.0 * at(n + 3) + at(n + 4);
            most = std::isnan(fourth) ? std::numeric_limits<double>::infinity()
                                      : std::max(most, std::fabs(fourth));
        }
    });
    return most;
}

void TakeCoefficients(const Patch& patch, std::int32_t base, std::size_t from,
                      CellPolynomial& cell) {
    const Coefficients c = CoefficientsOf(patch, base);
    for (std::size_t m = 0; m < 4; ++m) {
        for (std::size_t n = 0; n < 4; ++n) {
            cell.c[m][from + n] = static_cast<float>(c[m][n]);
        }
    }
}

CubicPatch::CubicPatch(const Patch& patch) : c_(CoefficientsOf(patch, 0.0)) {}

double CubicPatch::At(int row, int column) const {
    const double across = static_cast<double>(column) / cellSide;
    const double down = static_cast<double>(row) / cellSide;
    double sum = 0.0;
    for (std::size_t m = 4; m-- > 0;) {
        const auto& c = c_[m];
        sum = sum * down + (((c[3] * across + c[2]) * across + c[1]) * across + c[0]);
    }
    return sum;
}

}  // namespace varnel
