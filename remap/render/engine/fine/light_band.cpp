// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/fine/light_band.h"

#include <algorithm>

namespace varnel {

LightSource::LightSource(const SourceView& photo, const TransferCurve& curve)
    : photo_(photo), curve_(curve) {
    for (std::size_t n = 0; n < ofBytes_.size(); ++n) {
        ofBytes_[n] = curve.LightOf(static_cast<std::uint8_t>(n));
    }
}

template <class Sample>
float LightSource::LightOf(Sample sample) const {
    if constexpr (std::is_same_v<Sample, std::uint8_t>) {
        return ofBytes_[sample];
    } else {
        return curve_.LightOf(sample);
    }
}

template <class Sample>
void LightSource::PutPixel(const std::uint8_t* pixel, float* out) const {
    for (std::size_t n = 0; n < 3; ++n) {
        out[n] = LightOf(SampleAt<Sample>(pixel, n));
    }
    out[3] = 1.0F;
    if (HasAlpha(photo_.format)) {
        constexpr auto most = std::is_same_v<Sample, float>
                                  ? 1.0F
                                  : static_cast<float>(std::numeric_limits<Sample>::max());
        out[3] = std::clamp(static_cast<float>(SampleAt<Sample>(pixel, 3)) / most, 0.0F, 1.0F);
        for (std::size_t n = 0; n < 3; ++n) {
            out[n] *= out[3];
        }
    }
}

template <class Sample>
void LightSource::PutRow(const PixelBox& box, const std::uint8_t* row, float* out) const {
    const std::ptrdiff_t step = PixelStep(photo_.format);
    const std::int32_t first = std::clamp(box.left, 0, photo_.width - 1);
    const std::int32_t end = std::clamp(box.right, first + 1, photo_.width);
    const auto pixelOf = [&](std::int32_t column) { return out + 4 * (column - box.left); };
    const std::uint8_t* pixel = row + std::max(first, box.left) * step;
    for (std::int32_t x = std::max(first, box.left); x < std::min(end, box.right);
         ++x, pixel += step) {
        PutPixel<Sample>(pixel, pixelOf(x));
    }
    for (std::int32_t x = box.left; x < std::min(first, box.right); ++x) {
        PutPixel<Sample>(row + first * step, pixelOf(x));
    }
    for (std::int32_t x = std::max(end, box.left); x < box.right; ++x) {
        PutPixel<Sample>(row + (end - 1) * step, pixelOf(x));
    }
}

LightView LightSource::Of(const PixelBox& box, std::vector<float>& memory) const {
    const auto pitch = static_cast<std::ptrdiff_t>(lightNumbers) * (box.right - box.left);
    const auto needed = static_cast<std::size_t>(box.Area()) * lightNumbers;
    if (memory.size() < needed) {
        memory.resize(needed);
    }
    float* out = memory.data();
    for (std::int32_t y = box.bottom; y < box.top; ++y, out += pitch) {
        const std::uint8_t* const row =
            photo_.bits + std::clamp(y, 0, photo_.height - 1) * photo_.pitch;
        WithSample(SampleKindOf(photo_.format),
                   [&](auto kind) { PutRow<decltype(kind)>(box, row, out); });
    }
    return {memory.data(), pitch, box.left, box.bottom};
}

}  // namespace varnel
