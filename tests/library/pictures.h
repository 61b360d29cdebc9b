// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures for the library's tests.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "varnel/varnel.hpp"

namespace varnel::testing {

inline constexpr Size photoSize{301, 203};

// Equidistant, 90 degrees at a circle of 90 pixels around (148, 101).
inline Lens EquidistantLens() {
    Lens lens = Lens::FromCurve({0.0, 90.0}, {0.0, 1.0});
    lens.SetCircle({148.0, 101.0}, 90.0, photoSize);
    return lens;
}

// Pixels of the caller, rows of row samples after each other; none beside them, so that a sanitizer
// sees whoever reads on.
template <class Sample>
struct Pixels {
    Pixels(Size itsSize, int itsChannels, std::ptrdiff_t padding = 0)
        : size(itsSize),
          channels(itsChannels),
          row(std::ptrdiff_t{itsSize.width} * itsChannels + padding),
          samples(static_cast<std::size_t>(row * (itsSize.height - 1) +
                                           std::ptrdiff_t{itsSize.width} * itsChannels)) {}

    Sample& At(int x, int y, int channel) {
        return samples[static_cast<std::size_t>(y * row + x * channels + channel)];
    }
    // With bottomUp the first row in memory is the picture's lowest.
    varnel_image Image(bool bottomUp = false, varnel_order order = VARNEL_RGB) {
        const auto bytes = static_cast<std::ptrdiff_t>(sizeof(Sample)) * row;
        return {bottomUp ? samples.data() + row * (size.height - 1) : samples.data(),
                size.width,
                size.height,
                bottomUp ? -bytes : bytes,
                channels,
                sizeof(Sample) == 1   ? VARNEL_UINT8
                : sizeof(Sample) == 2 ? VARNEL_UINT16
                                      : VARNEL_FLOAT,
                order};
    }

    Size size;
    int channels;
    std::ptrdiff_t row;  // samples from row to row
    std::vector<Sample> samples;
};

}  // namespace varnel::testing
