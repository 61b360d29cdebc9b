// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The inner loops of the fine engine. Their vector code is in fine_kernels.cpp, place_kernels.cpp
// and light_codes.cpp alone and chooses the instruction set when it runs; what it gives is the same
// on all of them, to the last bit: it multiplies and adds in one order, each rounded. Throws
// nothing.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <type_traits>

#include "remap/image/levels/transfer_curve.h"

namespace varnel {

// c[0] + c[1] n + ... + c[5] n^5 for n from 0 on.
void FillPolynomial(const std::array<double, 6>& c, std::span<double> into);
// from + n step for n from 0 on.
void FillStraight(float from, float step, std::span<float> into);
// The lengths of vectors with the parts aside[n] * asideUnit and up[n] * upUnit.
struct Sides {
    const double *aside, *up;
    double asideUnit, upUnit;
};
void FillLengths(const Sides& sides, std::span<float> into);

// Light of a piece of a photo: four numbers for each pixel, blue, green, red and alpha, the colours
// multiplied by alpha.
struct LightView {
    const float* pixels = nullptr;
    std::ptrdiff_t pitch = 0;  // numbers from row to row, upward
    std::int32_t left = 0;     // the photo's column and row of the first pixel
    std::int32_t bottom = 0;
};
inline constexpr std::size_t lightNumbers = 4;
// Columns that a view has to have to the right of all that kernels reach.
inline constexpr std::int32_t sparePixels = 1;

// Positions are read in groups of so many, be there pixels or not.
inline constexpr std::size_t pixelsAhead = 16;

// Where pixels are read.
struct FineRun {
    const double *x, *y;
    const float *scaleX, *scaleY;
    const float* share;  // pixels without one are not read
    int count = 0;
};

// The outermost positions of the pixels that have a share, and the largest scales; those of pixels
// that have none may be among them.
struct FineReach {
    double left = std::numeric_limits<double>::infinity();
    double bottom = left;
    double right = -left;
    double top = -left;
    float scaleX = 0.0F;
    float scaleY = 0.0F;

    bool IsEmpty() const { return right < left; }
};
void ExtendReach(const FineRun& run, FineReach& reach);

// By the kernel of fine_kernel.h, four numbers for each pixel; those without a share get zeros.
void SampleLight(const LightView& view, const FineRun& run, float* out);

// From light to samples of 0 to 1, four numbers for each pixel, of which the fourth stays.
void CodeLight(const TransferCurve& curve, std::span<float> pixels);

// A level of 0 to 1 as the nearest sample; floating-point ones keep it.
template <class Sample>
Sample NearestSample(float level) {
    if constexpr (std::is_same_v<Sample, float>) {
        return level;
    } else {
        constexpr auto most = static_cast<float>(std::numeric_limits<Sample>::max());
        return static_cast<Sample>(std::clamp(level * most + 0.5F, 0.0F, most));
    }
}

// Samples of 0 to 1 to bytes or words, blue, green and red of each pixel.
void StoreBytes(std::span<const float> pixels, std::uint8_t* out);
void StoreWords(std::span<const float> pixels, std::uint8_t* out);

}  // namespace varnel
