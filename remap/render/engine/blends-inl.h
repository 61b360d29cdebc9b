// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the kernels blend vectors of output pixels by, once for each instruction set: for each
// kind of pixel a type with the same two functions, which WithBlend chooses. StoreInside takes the
// four neighbours, StoreBetween two of a row; all of them have to be on the picture, and so has a
// third pixel to their right. Blends other than of Bgr8 are rounded to the nearest sample; they
// differ from the double-precision ones by what single precision leaves of positions and levels.
// Throws nothing.

#if defined(VARNEL_BLENDS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_BLENDS_INL
#undef VARNEL_BLENDS_INL
#else
#define VARNEL_BLENDS_INL
#endif

#include <hwy/highway.h>

#include <array>
#include <cstring>

#include "remap/render/engine/planar_blend-inl.h"
#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Bgr8: the bytes of a vector of pixels side by side.
struct ByteBlend {
    // The target's pixels from the n-th on.
    static HWY_INLINE void StoreInside(const SourceView source, const Coordinate& x,
                                       const Coordinate& y, const SpanTarget& target, int n) {
        HWY_ALIGN std::array<std::int32_t, lanesAtMost> offsets;
        HWY_ALIGN std::array<std::uint64_t, lanesAtMost> below;
        HWY_ALIGN std::array<std::uint64_t, lanesAtMost> above;
        hn::Store(Offsets<3>(x.whole, y.whole, source.pitch), Ints(), offsets.data());
        const std::uint8_t* const rowAbove = source.bits + source.pitch;
        const std::size_t lanes = hn::Lanes(Floats());
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            std::memcpy(&below[lane], source.bits + offsets[lane], 8);
            std::memcpy(&above[lane], rowAbove + offsets[lane], 8);
        }
        const Pair lowerPair = LoadPairs(below.data());
        const Pair upperPair = LoadPairs(above.data());
        if (target.only) {
            const VecF level = Between(BetweenPair(lowerPair, x.part, *target.only),
                                       BetweenPair(upperPair, x.part, *target.only), y.part);
            StoreChannel(level, *target.only, target.At(n), target.stride);
            return;
        }
        const Colours lower = BetweenPair(lowerPair, x.part);
        const Colours upper = BetweenPair(upperPair, x.part);
        StoreColours(
            {Between(lower.blue, upper.blue, y.part), Between(lower.green, upper.green, y.part),
             Between(lower.red, upper.red, y.part)},
            target.At(n), target.stride, static_cast<int>(lanes));
    }

    static HWY_INLINE void StoreBetween(const SourceView source, const Coordinate& x, VecI row,
                                        const SpanTarget& target, std::ptrdiff_t n) {
        HWY_ALIGN std::array<std::int32_t, lanesAtMost> offsets;
        HWY_ALIGN std::array<std::uint64_t, lanesAtMost> pairs;
        hn::Store(Offsets<3>(x.whole, row, source.pitch), Ints(), offsets.data());
        const std::size_t lanes = hn::Lanes(Floats());
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            std::memcpy(&pairs[lane], source.bits + offsets[lane], 8);
        }
        StoreColours(BetweenPair(LoadPairs(pairs.data()), x.part), target.At(n), target.stride,
                     static_cast<int>(lanes));
    }
};

#if HWY_TARGET != HWY_SCALAR
using Four = hn::FixedTag<float, 4>;
using FourInts = hn::FixedTag<std::int32_t, 4>;
using VecFour = hn::Vec<Four>;

// Other formats: the samples of a pixel side by side, one pixel after the other.
template <class Sample, bool hasAlpha>
struct PixelBlend {
    // The target's pixels from the n-th on.
    static HWY_INLINE void StoreInside(const SourceView source, const Coordinate& x,
                                       const Coordinate& y, const SpanTarget& target, int n) {
        const std::ptrdiff_t pitch = Pitch(source);
        HWY_ALIGN std::array<std::int32_t, lanesAtMost> offsets;
        HWY_ALIGN std::array<float, lanesAtMost> partX;
        HWY_ALIGN std::array<float, lanesAtMost> partY;
        hn::Store(Offsets<samples>(x.whole, y.whole, pitch), Ints(), offsets.data());
        hn::Store(x.part, Floats(), partX.data());
        hn::Store(y.part, Floats(), partY.data());
        const auto* const bits = reinterpret_cast<const Sample*>(source.bits);
        StoreLanes(target, n, [&](std::size_t lane) {
            const Sample* const pixel = bits + offsets[lane];
            const VecFour across = hn::Set(Four(), partX[lane]);
            const VecFour lower = Between(Load(pixel), Load(pixel + samples), across);
            const VecFour upper =
                Between(Load(pixel + pitch), Load(pixel + pitch + samples), across);
            return Between(lower, upper, hn::Set(Four(), partY[lane]));
        });
    }

    static HWY_INLINE void StoreBetween(const SourceView source, const Coordinate& x, VecI row,
                                        const SpanTarget& target, std::ptrdiff_t n) {
        HWY_ALIGN std::array<std::int32_t, lanesAtMost> offsets;
        HWY_ALIGN std::array<float, lanesAtMost> part;
        hn::Store(Offsets<samples>(x.whole, row, Pitch(source)), Ints(), offsets.data());
        hn::Store(x.part, Floats(), part.data());
        const auto* const bits = reinterpret_cast<const Sample*>(source.bits);
        StoreLanes(target, n, [&](std::size_t lane) {
            const Sample* const pixel = bits + offsets[lane];
            return Between(Load(pixel), Load(pixel + samples), hn::Set(Four(), part[lane]));
        });
    }

  private:
    static constexpr int samples = hasAlpha ? 4 : 3;
    static constexpr auto white = static_cast<float>(whiteOf<Sample>);
    static constexpr float perWhite = 1.0F / white;
    static_assert(white * perWhite == 1.0F);  // what is opaque stays as it is

    // In samples from row to row.
    static std::ptrdiff_t Pitch(const SourceView& source) {
        return source.pitch / static_cast<std::ptrdiff_t>(sizeof(Sample));
    }

    // Without alpha the fourth is a sample of the next pixel.
    static VecFour Load(const Sample* pixel) {
        const VecFour levels = Levels(pixel);
        if constexpr (hasAlpha) {
            const VecFour alpha = hn::Mul(hn::Broadcast<3>(levels), hn::Set(Four(), perWhite));
            return hn::IfThenElse(ColourLanes(), hn::Mul(levels, alpha), alpha);
        } else {
            return levels;
        }
    }
    static VecFour Levels(const Sample* pixel) {
        if constexpr (std::is_same_v<Sample, float>) {
            return hn::Min(hn::LoadU(Four(), pixel), hn::Set(Four(), mostLight));
        } else {
            const auto narrow = hn::LoadU(hn::Rebind<Sample, Four>(), pixel);
            return hn::ConvertTo(Four(), hn::PromoteTo(FourInts(), narrow));
        }
    }
    static hn::Mask<Four> ColourLanes() { return hn::FirstN(Four(), 3); }

    // Back from what is multiplied by alpha.
    static VecFour Straight(VecFour levels) {
        const VecFour alpha = hn::Broadcast<3>(levels);
        const VecFour one = hn::Set(Four(), 1.0F);
        const auto divides = hn::Gt(alpha, hn::Zero(Four()));
        const VecFour colours = hn::Div(levels, hn::IfThenElse(divides, alpha, one));
        return hn::IfThenElse(ColourLanes(), colours, hn::Mul(alpha, hn::Set(Four(), white)));
    }
    static void Store(VecFour levels, Sample* out) {
        if constexpr (hasAlpha) {
            levels = Straight(levels);
        }
        if constexpr (std::is_same_v<Sample, float>) {
            hn::StoreU(levels, Four(), out);
        } else {
            const auto whole = hn::ConvertTo(FourInts(), hn::Add(levels, hn::Set(Four(), 0.5F)));
            const hn::Rebind<Sample, Four> narrow;
            hn::StoreU(hn::DemoteTo(narrow, whole), narrow, out);
        }
    }

    // Stores what blend(lane) gives for each lane. In the order of memory, because without alpha
    // each pixel but the last is stored with a sample too many.
    template <class Function>
    static void StoreLanes(const SpanTarget& target, std::ptrdiff_t n, const Function& blend) {
        const std::size_t last = hn::Lanes(Floats()) - 1;
        if (target.only) {
            for (std::size_t lane = 0; lane <= last; ++lane) {
                StoreSamples(blend(lane), target, n + static_cast<std::ptrdiff_t>(lane));
            }
            return;
        }
        const bool backward = target.stride < 0;
        auto* out = reinterpret_cast<Sample*>(
            target.At(n + (backward ? static_cast<std::ptrdiff_t>(last) : 0)));
        for (std::size_t k = 0; k < last; ++k, out += samples) {
            Store(blend(backward ? last - k : k), out);
        }
        StoreSamples(blend(backward ? 0 : last), target,
                     n + (backward ? 0 : static_cast<std::ptrdiff_t>(last)));
    }
    // Not a byte beside the pixel, or of a channel.
    static void StoreSamples(VecFour levels, const SpanTarget& target, std::ptrdiff_t n) {
        std::array<Sample, 4> pixel;
        Store(levels, pixel.data());
        if (target.only) {
            const auto place = static_cast<std::size_t>(*target.only);
            PutSample(target.At(n), place, pixel[place]);
        } else {
            std::memcpy(target.At(n), pixel.data(), samples * sizeof(Sample));
        }
    }
};
#endif

// Calls the function with the type for the source. Where a vector is a single number TakesVectors
// is true for Bgr8 alone.
template <class Function>
void WithBlend([[maybe_unused]] const SourceView& source, const Function& function) {
#if HWY_TARGET != HWY_SCALAR
    if (source.planar != nullptr) {
        function(PlanarBlend());
        return;
    }
    switch (source.format) {
        case PixelFormat::Bgra8:
            return function(PixelBlend<std::uint8_t, true>());
        case PixelFormat::Bgr16:
            return function(PixelBlend<std::uint16_t, false>());
        case PixelFormat::Bgra16:
            return function(PixelBlend<std::uint16_t, true>());
        case PixelFormat::BgrFloat:
            return function(PixelBlend<float, false>());
        case PixelFormat::BgraFloat:
            return function(PixelBlend<float, true>());
        case PixelFormat::Bgr8:
            break;
    }
#endif
    function(ByteBlend());
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
