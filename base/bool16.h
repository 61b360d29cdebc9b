// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The 16-bit boolean of the records: 0 or -1, so that a stored record keeps its given widths.
// Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

class Bool16 {
  public:
    constexpr Bool16(bool on = false) : value_(on ? -1 : 0) {}  // NOLINT: implicit on purpose
    constexpr operator bool() const { return value_ != 0; }     // NOLINT: likewise
    constexpr std::int16_t Value() const { return value_; }

  private:
    std::int16_t value_;
};

}  // namespace varnel
