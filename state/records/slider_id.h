// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The controls that adjust a record.
#pragma once

namespace varnel {

// Each stands for one field of the record; Effect for the one that the projection reads.
enum class SliderId { AovOutput, Effect, X, Y, Z, XTranslate, YTranslate, AovInput };

// Whole numbers, both ends included.
struct ControlRange {
    int minimum = 0;
    int maximum = 0;
};

}  // namespace varnel
