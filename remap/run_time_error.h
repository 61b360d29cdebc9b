// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The errors that a conversion can end with because of its numbers: a whole number that does not
// fit, a division by zero. They are thrown by the checked functions here and in rounding.h and
// caught where one picture's conversion is started, never in between.
#pragma once

#include <stdexcept>
#include <string>

namespace varnel {

class RunTimeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class OverflowError : public RunTimeError {
  public:
    explicit OverflowError(const std::string& what) : RunTimeError("Overflow: " + what) {}
};

class DivisionByZeroError : public RunTimeError {
  public:
    explicit DivisionByZeroError(const std::string& what)
        : RunTimeError("Division by zero: " + what) {}
};

// Returns the divisor itself. Throws DivisionByZeroError, naming the divisor, when it is zero or
// not a number.
inline double NonZero(double divisor, const char* name) {
    if (!(divisor < 0.0 || divisor > 0.0)) {
        throw DivisionByZeroError(std::string(name) + " is " +
                                  (divisor == 0.0 ? "0" : "no number"));
    }
    return divisor;
}

}  // namespace varnel
