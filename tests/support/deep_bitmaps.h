// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of any depth for tests.
#pragma once

#include <random>
#include <type_traits>

#include "remap/image/pixel_access.h"

namespace varnel::testing {

// A slope with grain that uses all bits of each sample.
inline BitmapHandle Deep(PixelSize size, PixelFormat format) {
    BitmapHandle bitmap = NewBitmap(size, format);
    std::mt19937 random(11);
    const std::size_t samples = HasAlpha(format) ? 4 : 3;
    for (int y = 0; y < size.height; ++y) {
        std::uint8_t* pixel = bitmap->ScanLine(y).data();
        for (int x = 0; x < size.width; ++x, pixel += PixelStep(format)) {
            for (std::size_t n = 0; n < samples; ++n) {
                const auto value =
                    static_cast<unsigned>((x * 150U + y * 70U) * (n + 1) + random() % 900);
                WithSample(SampleKindOf(format), [&](auto kind) {
                    using Sample = decltype(kind);
                    PutSample(pixel, n,
                              std::is_same_v<Sample, float>
                                  ? static_cast<Sample>(static_cast<float>(value) / 50000.0F - 0.1F)
                                  : static_cast<Sample>(value));
                });
            }
        }
    }
    return bitmap;
}

}  // namespace varnel::testing
