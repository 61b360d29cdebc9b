// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Samples as libtiff gives them, brought to those of a pixel format. Throws nothing.
#pragma once

#include <cstddef>
#include <cstdint>

namespace varnel {

// How each sample of a row is coded.
struct TiffSampleKind {
    int bits = 8;  // integers: 8 to 32; floating point: 16, 32 or 64
    bool isFloat = false;
    bool whiteIsZero = false;  // integers only
};

// That many samples of a row, which begins at a byte. Integers keep their part of the range.
// Of 8 bits:
void TakeSamples(const std::uint8_t* row, const TiffSampleKind& kind, std::size_t count,
                 std::uint8_t* to);
// Of 9 bits and more:
void TakeSamples(const std::uint8_t* row, const TiffSampleKind& kind, std::size_t count,
                 std::uint16_t* to);
// Floating point: no number becomes 0, infinite 1e9.
void TakeSamples(const std::uint8_t* row, const TiffSampleKind& kind, std::size_t count, float* to);

}  // namespace varnel
