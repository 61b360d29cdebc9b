// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The errors that a conversion can end with because of its numbers: a whole number that does not
// fit, a division by zero. They are thrown by the checked functions here and in rounding.h and
// caught where one picture's conversion is started, never in between. ReasonFor (error_reason.h)
// turns them into reasons with texts, which the geometry does not know.
#pragma once

#include <exception>

#include "base/reason_code.h"

namespace varnel {

// The name of a number: that of a record's field, a text that outlives every error, or the code of
// words that are translated.
struct ValueName {
    constexpr ValueName(const char* itsField) : field(itsField) {}
    constexpr ValueName(ReasonCode itsWords) : words(itsWords) {}

    const char* field = "";
    ReasonCode words = ReasonCode::None;
};

class RunTimeError : public std::exception {
  public:
    RunTimeError(ReasonCode code, ValueName value) : code_(code), value_(value) {}
    const char* what() const noexcept override { return "a number makes no picture"; }
    ReasonCode Code() const { return code_; }
    const ValueName& Value() const { return value_; }

  private:
    ReasonCode code_;
    ValueName value_;
};

class OverflowError : public RunTimeError {
  public:
    using RunTimeError::RunTimeError;
};

class DivisionByZeroError : public RunTimeError {
  public:
    using RunTimeError::RunTimeError;
};

// Returns the divisor itself. Throws DivisionByZeroError, naming the divisor, when it is zero or
// not a number.
inline double NonZero(double divisor, ValueName name) {
    if (!(divisor < 0.0 || divisor > 0.0)) {
        throw DivisionByZeroError(
            divisor == 0.0 ? ReasonCode::DividedByZero : ReasonCode::DividedByNoNumber, name);
    }
    return divisor;
}

}  // namespace varnel
