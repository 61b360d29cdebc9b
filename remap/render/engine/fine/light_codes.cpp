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

// The span is as long as whole vectors, see CodeLight.
void CodeLightImpl(const float* byRoot, float slope, std::span<float> pixels) {
    const hn::CappedTag<float, 8> d;
    const hn::Rebind<std::int32_t, decltype(d)> ints;
    const auto isAlpha = hn::Eq(hn::And(hn::Iota(ints, 0), hn::Set(ints, 3)), hn::Set(ints, 3));
    const auto one = hn::Set(d, 1.0F);
    const std::size_t lanes = hn::Lanes(d);
    for (std::size_t n = 0; n + lanes <= pixels.size(); n += lanes) {
        const auto light = hn::LoadU(d, &pixels[n]);
        const auto root = hn::Sqrt(hn::Min(hn::Max(light, hn::Zero(d)), one));
        const auto place = hn::Mul(root, hn::Set(d, static_cast<float>(TransferCurve::rootSteps)));
        const auto below = hn::ConvertTo(ints, place);
        const auto part = hn::Sub(place, hn::ConvertTo(d, below));
        const auto low = hn::GatherIndex(d, byRoot, below);
        const auto high = hn::GatherIndex(d, byRoot + 1, below);
        const auto beyond = hn::Mul(hn::Max(hn::Sub(light, one), hn::Zero(d)), hn::Set(d, slope));
        const auto sample = hn::Add(hn::Add(low, hn::Mul(hn::Sub(high, low), part)), beyond);
        hn::StoreU(hn::IfThenElse(hn::RebindMask(d, isAlpha), light, sample), d, &pixels[n]);
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
