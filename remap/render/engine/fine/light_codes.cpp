// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From light to the samples of pictures. Compiled once for each instruction set.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/render/engine/fine/light_codes.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <array>
#include <limits>

#include "remap/image/pixel_access.h"
#include "remap/render/engine/fine/fine_kernels.h"
#include "remap/render/engine/fine/pixel_vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

void CodeLightImpl(const float* byRoot, float slope, std::span<float> pixels) {
    constexpr auto steps = static_cast<float>(TransferCurve::rootSteps);
    const Pixel black = Every(0.0F);
    const Pixel white = Every(1.0F);
    for (std::size_t n = 0; n < pixels.size(); n += lightNumbers) {
        const Pixel light = LoadPixel(&pixels[n]);
        const Pixel place = Root(Least(Most(light, black), white)) * Every(steps);
        HWY_ALIGN std::array<std::int32_t, lightNumbers> below;
        StoreWhole(place, below.data());
        const auto [low, high] = LoadEntries(byRoot, below.data());
        const Pixel part = place - OfWhole(below.data());
        const Pixel beyond = Most(light - white, black) * Every(slope);
        const float alpha = pixels[n + 3];
        StorePixel(low + (high - low) * part + beyond, &pixels[n]);
        pixels[n + 3] = alpha;
    }
}

template <class Sample>
void StoreSamples(std::span<const float> pixels, std::uint8_t* out) {
    constexpr auto most = static_cast<float>(std::numeric_limits<Sample>::max());
    for (std::size_t n = 0; n < pixels.size(); n += lightNumbers, out += 3 * sizeof(Sample)) {
        const Pixel level = LoadPixel(&pixels[n]) * Every(most) + Every(0.5F);
        HWY_ALIGN std::array<std::int32_t, lightNumbers> whole;
        StoreWhole(Least(Most(level, Every(0.0F)), Every(most)), whole.data());
        for (std::size_t k = 0; k < 3; ++k) {
            PutSample(out, k, static_cast<Sample>(whole[k]));
        }
    }
}

void StoreBytesImpl(std::span<const float> pixels, std::uint8_t* out) {
    StoreSamples<std::uint8_t>(pixels, out);
}

void StoreWordsImpl(std::span<const float> pixels, std::uint8_t* out) {
    StoreSamples<std::uint16_t>(pixels, out);
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(CodeLightImpl);
HWY_EXPORT(StoreBytesImpl);
HWY_EXPORT(StoreWordsImpl);

void CodeLight(const TransferCurve& curve, std::span<float> pixels) {
    if (!curve.IsStraight()) {
        HWY_DYNAMIC_DISPATCH(CodeLightImpl)(curve.SamplesByRoot(), curve.SlopeBeyond(), pixels);
    }
}

void StoreBytes(std::span<const float> pixels, std::uint8_t* out) {
    HWY_DYNAMIC_DISPATCH(StoreBytesImpl)(pixels, out);
}

void StoreWords(std::span<const float> pixels, std::uint8_t* out) {
    HWY_DYNAMIC_DISPATCH(StoreWordsImpl)(pixels, out);
}

}  // namespace varnel
#endif
