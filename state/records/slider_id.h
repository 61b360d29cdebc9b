// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The controls that adjust a record.
#pragma once

#include <cstddef>

namespace varnel {

// Each stands for one field of the record; Effect for the one that the projection reads.
enum class SliderId {
    AovOutput,
    Effect,
    X,
    Y,
    Z,
    XTranslate,
    YTranslate,
    AovInput,
    PaniniD,
    PaniniSqueeze,
    UnrollStart,
    UnrollFrom,
    UnrollTo
};

inline constexpr std::size_t sliderCount = static_cast<std::size_t>(SliderId::UnrollTo) + 1;

// Whole numbers, both ends included.
struct ControlRange {
    int minimum = 0;
    int maximum = 0;
};

}  // namespace varnel
