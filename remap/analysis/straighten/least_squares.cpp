// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/least_squares.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varnel {

namespace {

double Product(const Numbers& a, const Numbers& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

std::vector<Numbers> Derivatives(const Residuals& residuals, const LeastSquaresFit& fit) {
    constexpr double step = 1e-4;
    std::vector<Numbers> all;
    for (std::size_t n = 0; n < fit.parameters.size(); ++n) {
        Numbers moved = fit.parameters;
        moved[n] += step;
        Numbers column = residuals(moved);
        for (std::size_t row = 0; row < column.size(); ++row) {
            column[row] = (column[row] - fit.residuals[row]) / step;
        }
        all.push_back(std::move(column));
    }
    return all;
}

Numbers DampedStep(const LeastSquaresFit& fit, double damping) {
    SquareMatrix information = Information(fit.derivatives);
    Numbers downhill;
    for (std::size_t n = 0; n < information.Side(); ++n) {
        information(n, n) *= 1.0 + damping;
        downhill.push_back(-Product(fit.derivatives[n], fit.residuals));
    }
    return SolveByRoot(information.Root(), std::move(downhill));
}

}  // namespace

SquareMatrix SquareMatrix::Root() const {
    SquareMatrix root(side_);
    for (std::size_t row = 0; row < side_; ++row) {
        for (std::size_t column = 0; column <= row; ++column) {
            double rest = (*this)(row, column);
            for (std::size_t k = 0; k < column; ++k) {
                rest -= root(row, k) * root(column, k);
            }
            root(row, column) =
                row == column ? std::sqrt(std::max(rest, 1e-12)) : rest / root(column, column);
        }
    }
    return root;
}

Numbers SolveByRoot(const SquareMatrix& root, Numbers right) {
    const std::size_t side = root.Side();
    for (std::size_t row = 0; row < side; ++row) {
        for (std::size_t k = 0; k < row; ++k) {
            right[row] -= root(row, k) * right[k];
        }
        right[row] /= root(row, row);
    }
    for (std::size_t row = side; row-- > 0;) {
        for (std::size_t k = row + 1; k < side; ++k) {
            right[row] -= root(k, row) * right[k];
        }
        right[row] /= root(row, row);
    }
    return right;
}

SquareMatrix Information(const std::vector<Numbers>& derivatives) {
    SquareMatrix information(derivatives.size());
    for (std::size_t row = 0; row < derivatives.size(); ++row) {
        for (std::size_t column = 0; column <= row; ++column) {
            information(row, column) = information(column, row) =
                Product(derivatives[row], derivatives[column]);
        }
    }
    return information;
}

LeastSquaresFit Minimise(const Residuals& residuals, Numbers start, int rounds) {
    LeastSquaresFit fit{std::move(start), {}, {}, 0.0};
    fit.residuals = residuals(fit.parameters);
    fit.cost = Product(fit.residuals, fit.residuals);
    double damping = 1e-3;
    for (int round = 0; round < rounds && damping < 1e8; ++round) {
        fit.derivatives = Derivatives(residuals, fit);
        bool better = false;
        double gain = 0.0;
        for (; !better && damping < 1e8; damping *= 10.0) {
            const Numbers step = DampedStep(fit, damping);
            Numbers tried = fit.parameters;
            std::ranges::transform(tried, step, tried.begin(), std::plus());
            Numbers left = residuals(tried);
            const double cost = Product(left, left);
            better = cost < fit.cost;
            if (better) {
                gain = fit.cost - cost;
                fit.parameters = std::move(tried);
                fit.residuals = std::move(left);
                fit.cost = cost;
                damping /= 100.0;
            }
        }
        damping = std::max(damping, 1e-9);
        if (gain <= 1e-7 * fit.cost) {
            break;
        }
    }
    fit.derivatives = Derivatives(residuals, fit);
    return fit;
}

}  // namespace varnel
