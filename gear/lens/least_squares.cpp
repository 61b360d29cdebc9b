// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/least_squares.h"

#include <cmath>
#include <utility>

namespace varnel {

namespace {

using Column = std::vector<double>;

double Product(const Column& one, const Column& other) {
    double sum = 0.0;
    for (std::size_t n = 0; n < one.size(); ++n) {
        sum += one[n] * other[n];
    }
    return sum;
}

void Subtract(Column& from, double factor, const Column& column) {
    for (std::size_t n = 0; n < from.size(); ++n) {
        from[n] -= factor * column[n];
    }
}

}  // namespace

// Modified Gram and Schmidt: high powers of the angle are too much alike for normal equations.
std::vector<double> FitTerms(int terms, double limit,
                             const std::function<double(int term, double x)>& term,
                             const std::function<double(double x)>& value) {
    constexpr int places = 2000;
    const auto count = static_cast<std::size_t>(terms);
    std::vector<Column> columns(count + 1, Column(places));
    for (int place = 0; place < places; ++place) {
        const double x = limit * (place + 1) / places;
        const auto row = static_cast<std::size_t>(place);
        for (int n = 0; n < terms; ++n) {
            columns[static_cast<std::size_t>(n)][row] = term(n, x);
        }
        columns[count][row] = value(x);
    }
    std::vector<Column> upper(count, Column(count + 1));
    for (std::size_t n = 0; n < count; ++n) {
        const double square = Product(columns[n], columns[n]);
        if (!(square > 0.0)) {
            return Column(count);
        }
        upper[n][n] = 1.0;
        for (std::size_t later = n + 1; later <= count; ++later) {
            upper[n][later] = Product(columns[n], columns[later]) / square;
            Subtract(columns[later], upper[n][later], columns[n]);
        }
    }
    Column factors(count);
    for (std::size_t n = count; n-- > 0;) {
        factors[n] = upper[n][count];
        for (std::size_t later = n + 1; later < count; ++later) {
            factors[n] -= upper[n][later] * factors[later];
        }
    }
    return factors;
}

}  // namespace varnel
