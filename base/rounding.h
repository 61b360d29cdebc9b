// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The roundings that every projection is defined with. Their ties and directions show in the
// pictures: a position that rounds the other way is another pixel. CLng, CInt and ToSingle throw
// OverflowError, the others nothing.
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

#include "base/run_time_error.h"

namespace varnel {

// The float nearest to pi, bits 0x40490FDB. Degrees become radians with this value, widened; the
// double pi would move every source position a little.
inline constexpr float Pi = 3.1415927F;

// Rounds toward minus infinity.
inline double Int(double x) {
    return std::floor(x);
}

// Rounds to the nearest whole number, ties to even.
inline double Round(double x) {
    return std::nearbyint(x);
}

// Rounds to eight decimal places, ties to even.
inline double Round8(double x) {
    return std::nearbyint(x * 1e8) / 1e8;
}

// Rounds to the nearest 32-bit whole number, ties to even. Throws OverflowError, naming the value,
// when the result does not fit.
inline std::int32_t CLng(double x, ValueName name) {
    const double rounded = Round(x);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) {
        throw OverflowError(ReasonCode::OverflowOf32Bits, name);
    }
    return static_cast<std::int32_t>(rounded);
}

// As CLng for 16 bits.
inline std::int16_t CInt(double x, ValueName name) {
    const double rounded = Round(x);
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) {
        throw OverflowError(ReasonCode::OverflowOf16Bits, name);
    }
    return static_cast<std::int16_t>(rounded);
}

// Rounds a double once to single precision. Throws OverflowError when it is beyond a float's range.
inline float ToSingle(double x, ValueName name) {
    const float single = static_cast<float>(x);
    if (!std::isfinite(single)) {
        throw OverflowError(ReasonCode::OverflowOfSingle, name);
    }
    return single;
}

// A pixel index for an already rounded position; empty when it is beyond 32 bits or not a number.
// Such a position is off every bitmap.
inline std::optional<std::int32_t> PixelIndex(double whole) {
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(whole);
}

}  // namespace varnel
