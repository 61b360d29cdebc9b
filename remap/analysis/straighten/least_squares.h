// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Least squares with damped steps: small, dense, derivatives by differences. Throws std::bad_alloc
// and what the function throws.
#pragma once

#include <functional>
#include <vector>

namespace varnel {

using Numbers = std::vector<double>;

// Rows of as many numbers as there are rows.
class SquareMatrix {
  public:
    explicit SquareMatrix(std::size_t side) : side_(side), values_(side * side, 0.0) {}
    double& operator()(std::size_t row, std::size_t column) {
        return values_[row * side_ + column];
    }
    double operator()(std::size_t row, std::size_t column) const {
        return values_[row * side_ + column];
    }
    std::size_t Side() const { return side_; }
    // Lower triangle L with L * L^T = this; a pivot that is not positive counts as tiny. The matrix
    // is symmetric.
    SquareMatrix Root() const;

  private:
    std::size_t side_;
    Numbers values_;
};

// x of L * L^T * x = right.
Numbers SolveByRoot(const SquareMatrix& root, Numbers right);

// The residuals for parameters; as many at every call.
using Residuals = std::function<Numbers(const Numbers& parameters)>;

struct LeastSquaresFit {
    Numbers parameters;
    Numbers residuals;
    std::vector<Numbers> derivatives;  // of all residuals, one vector a parameter
    double cost = 0.0;                 // the sum of squares
};

// The parameters are of a size that steps of a ten-thousandth make sense for derivatives, and
// steps of 1 are large.
LeastSquaresFit Minimise(const Residuals& residuals, Numbers start, int rounds = 15);

// Derivatives' products: J^T J.
SquareMatrix Information(const std::vector<Numbers>& derivatives);

}  // namespace varnel
