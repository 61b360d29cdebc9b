// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of all formats, and how far two of them are apart.
#pragma once

#include <array>

#include "remap/image/levels/pixel_levels.h"
#include "tests/remap/render/engine_pictures.h"

namespace varnel::testing {

inline constexpr std::array deepFormats{PixelFormat::Bgra8, PixelFormat::Bgr16, PixelFormat::Bgra16,
                                        PixelFormat::BgrFloat, PixelFormat::BgraFloat};

// A picture in another format, with what bytes cannot hold: levels between theirs, in samples of
// floating point some beyond white, and alpha from nothing to all.
inline BitmapHandle Deepened(const Bitmap& bytes, PixelFormat format) {
    BitmapHandle deep = NewBitmap(bytes.Size(), format);
    for (int y = 0; y < bytes.Size().height; ++y) {
        for (int x = 0; x < bytes.Size().width; ++x) {
            const PixelLevels levels = GetLevels(&bytes, x, y);
            const double white = LevelsOf({255, 255, 255, 0}, format).red;
            const double alpha = HasAlpha(format) ? std::clamp(x % 40 / 20.0 - 0.4, 0.0, 1.0) : 1.0;
            const double grain = (x * 59 + y * 131) % 256 / 255.0 - 0.5;
            const auto level = [&](double byte) {
                const double most = SampleKindOf(format) == SampleKind::Float ? 1.5 : 1.0;
                return alpha * white * std::clamp(most * (byte + grain) / 255.0, 0.0, most);
            };
            SetLevels(deep.get(), x, y,
                      {level(levels.blue), level(levels.green), level(levels.red), alpha});
        }
    }
    return deep;
}

// Of levels and alpha, in parts of white; colours as far as they are seen.
inline double LargestDistance(const Bitmap* a, const Bitmap* b) {
    double largest = a->Format() == b->Format() && a->Size().width == b->Size().width &&
                             a->Size().height == b->Size().height
                         ? 0.0
                         : 1e9;
    const double white = LevelsOf({255, 255, 255, 0}, a->Format()).red;
    for (int y = 0; largest < 1e9 && y < a->Size().height; ++y) {
        for (int x = 0; x < a->Size().width; ++x) {
            const PixelLevels one = GetLevels(a, x, y);
            const PixelLevels other = GetLevels(b, x, y);
            for (const auto level : {&PixelLevels::blue, &PixelLevels::green, &PixelLevels::red}) {
                largest = std::max(largest, std::fabs(one.*level - other.*level) / white);
            }
            largest = std::max(largest, std::fabs(one.alpha - other.alpha));
        }
    }
    return largest;
}

}  // namespace varnel::testing
