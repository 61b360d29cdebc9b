// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Linear least squares for a handful of unknowns. Throws std::bad_alloc only.
#pragma once

#include <functional>
#include <vector>

namespace varnel {

// The factors of so many terms whose sum comes nearest to the values at places 0 < x <= limit, of
// which 2000 are taken, evenly spaced. Zeros where the terms are not independent.
std::vector<double> FitTerms(int terms, double limit,
                             const std::function<double(int term, double x)>& term,
                             const std::function<double(double x)>& value);

}  // namespace varnel
