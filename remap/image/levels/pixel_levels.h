// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pixels of any format as numbers to reckon with: what the blends take and give. Throws nothing.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

#include "remap/image/pixel_access.h"

namespace varnel {

// In the unit of the format's samples: 255, 65535 or 1 is white. Where the format has alpha the
// colours are multiplied by it, so that what is transparent lends no colour to its neighbours.
struct PixelLevels {
    double blue = 0.0;
    double green = 0.0;
    double red = 0.0;
    double alpha = 0.0;  // 0 to 1; 0 where the format has none

    bool operator==(const PixelLevels& other) const = default;
};

// What reads off the source give; transparent where the format has alpha.
inline constexpr PixelLevels noLight{};

template <class Sample>
inline constexpr double whiteOf = std::is_same_v<Sample, float>
                                      ? 1.0
                                      : static_cast<double>(std::numeric_limits<Sample>::max());

// Infinite light, as floating-point pictures may hold, counts as that much: differences of it have
// to be numbers.
inline constexpr float mostLight = 1e30F;

template <class Sample>
double LevelOf(const std::uint8_t* pixel, std::size_t place) {
    const auto sample = SampleAt<Sample>(pixel, place);
    if constexpr (std::is_same_v<Sample, float>) {
        return static_cast<double>(std::min(sample, mostLight));
    } else {
        return static_cast<double>(sample);
    }
}

// A level as the format's sample. Blends of Bgr8 are rounded down, others of whole numbers to the
// nearest one.
template <class Sample>
Sample SampleOf(double level, PixelFormat format) {
    if constexpr (std::is_same_v<Sample, float>) {
        return static_cast<float>(level);
    } else {
        const double rounded = format == PixelFormat::Bgr8 ? level : level + 0.5;
        return static_cast<Sample>(std::min(rounded, whiteOf<Sample>));
    }
}

// The pixel that begins there.
inline PixelLevels LevelsAt(const std::uint8_t* pixel, PixelFormat format) {
    return WithSample(SampleKindOf(format), [&](auto kind) -> PixelLevels {
        using Sample = decltype(kind);
        const PixelLevels straight{LevelOf<Sample>(pixel, 0), LevelOf<Sample>(pixel, 1),
                                   LevelOf<Sample>(pixel, 2), 0.0};
        if (!HasAlpha(format)) {
            return straight;
        }
        const double alpha = LevelOf<Sample>(pixel, 3) / whiteOf<Sample>;
        return {alpha * straight.blue, alpha * straight.green, alpha * straight.red, alpha};
    });
}

// With a channel nothing else of the pixel is written.
inline void PutLevels(std::uint8_t* pixel, const PixelLevels& levels, PixelFormat format,
                      std::optional<Channel> only = {}) {
    WithSample(SampleKindOf(format), [&](auto kind) {
        using Sample = decltype(kind);
        const bool divides = HasAlpha(format) && levels.alpha > 0.0;
        const double divisor = divides ? levels.alpha : 1.0;
        const std::array colours{levels.blue, levels.green, levels.red};
        for (std::size_t n = 0; n < colours.size(); ++n) {
            if (!only || static_cast<std::size_t>(*only) == n) {
                PutSample(pixel, n, SampleOf<Sample>(colours[n] / divisor, format));
            }
        }
        if (HasAlpha(format) && !only) {
            PutSample(pixel, 3, SampleOf<Sample>(levels.alpha * whiteOf<Sample>, format));
        }
    });
}

// An 8-bit colour in the format's unit, opaque.
inline PixelLevels LevelsOf(const PixelColor& colour, PixelFormat format) {
    return WithSample(SampleKindOf(format), [&](auto kind) -> PixelLevels {
        using Sample = decltype(kind);
        return {static_cast<double>(FromByte<Sample>(colour.blue)),
                static_cast<double>(FromByte<Sample>(colour.green)),
                static_cast<double>(FromByte<Sample>(colour.red)), 1.0};
    });
}

// No light outside the bitmap.
PixelLevels GetLevels(const Bitmap* bitmap, std::int32_t x, std::int32_t y);
// Nothing outside the bitmap.
void SetLevels(Bitmap* bitmap, std::int32_t x, std::int32_t y, const PixelLevels& levels,
               std::optional<Channel> only = {});

}  // namespace varnel
