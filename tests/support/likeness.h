// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How alike two pictures of one size are.
#pragma once

#include <cmath>

#include "remap/image/bitmap.h"

namespace varnel::testing {

// The peak signal to noise ratio in decibels, without a border of two pixels.
inline double Likeness(const Bitmap& one, const Bitmap& other) {
    constexpr int border = 2;
    double squares = 0.0;
    std::size_t count = 0;
    for (int y = border; y < one.Size().height - border; ++y) {
        const auto a = one.ScanLine(y);
        const auto b = other.ScanLine(y);
        for (std::size_t x = 3 * border; x + 3 * border < a.size(); ++x, ++count) {
            const double apart = static_cast<double>(a[x]) - b[x];
            squares += apart * apart;
        }
    }
    return 10.0 * std::log10(255.0 * 255.0 * static_cast<double>(count) / squares);
}

}  // namespace varnel::testing
