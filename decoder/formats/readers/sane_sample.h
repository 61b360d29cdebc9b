// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Samples as files have them, made such that one can calculate with them. Throws nothing.
#pragma once

#include <algorithm>
#include <cmath>

namespace varnel {

// What is no number becomes 0; what is infinite, 1e9, which is above any real scene.
template <class Number>
float SaneFloat(Number sample) {
    constexpr auto brightest = static_cast<Number>(1e9);
    if (std::isfinite(sample)) {
        return static_cast<float>(sample);
    }
    return std::isnan(sample) ? 0.0F
                              : static_cast<float>(std::clamp(sample, -brightest, brightest));
}

}  // namespace varnel
