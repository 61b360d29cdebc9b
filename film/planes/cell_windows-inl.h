// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How vectors of positions get at their neighbours on a plane; cell_kernels.cpp includes this once
// for each instruction set. Throws nothing.

#if defined(VARNEL_CELL_WINDOWS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_CELL_WINDOWS_INL
#undef VARNEL_CELL_WINDOWS_INL
#else
#define VARNEL_CELL_WINDOWS_INL
#endif

#include <hwy/highway.h>

#include <array>
#include <cstring>

#include "film/planes/cell_vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

// Two neighbouring samples of each lane as 32 bits or, of bytes, in the low half of them.
template <class Floats>
struct Words {
    hn::Vec<IntsOf<Floats>> upper, lower;  // of the rows above and below the positions
};

// Where the neighbours of a vector of positions lie close together, they are taken out of a few
// whole vectors; that is sooner than loading them one by one.
template <class Sample, class Floats>
class Window {
  public:
    // reach: how many rows the positions span beyond the first.
    Window([[maybe_unused]] const Places<Floats>& at, [[maybe_unused]] PixelSize plane, int reach)
        : reach_(reach) {
#if HWY_TARGET != HWY_SCALAR
        const IntsOf<Floats> ints;
        const std::uint32_t corner = LeastHalves(ints, hn::Or(at.x, hn::ShiftLeft<16>(at.y)));
        left_ = static_cast<std::int32_t>(corner & 0xFFFFU);
        top_ = static_cast<std::int32_t>(corner >> 16U);
        const int samples = perWord * static_cast<int>(hn::Lanes(ints));
        const auto x = hn::Sub(at.x, hn::Set(ints, left_));
        y_ = hn::Sub(at.y, hn::Set(ints, top_));
        word_ = hn::ShiftRight<perWord / 2>(x);
        isHalfway_ = IsSet(x, perWord / 2);
        isOdd_ = IsSet(x, 1);
        const auto isTooFar =
            hn::Or(hn::Gt(x, hn::Set(ints, samples - perWord)), hn::Gt(y_, hn::Set(ints, reach)));
        fits_ = reach <= mostRows && left_ + samples + perWord <= plane.width &&
                top_ + reach + 1 < plane.height && hn::AllFalse(ints, isTooFar);
#endif
    }
    bool Fits() const {
        return fits_;
    }

    HWY_INLINE Words<Floats> Load(const ConstPlane& plane) const {
        const IntsOf<Floats> ints;
        const std::byte* row =
            plane.first + top_ * plane.pitch + left_ * static_cast<std::ptrdiff_t>(sizeof(Sample));
        Words<Floats> words{Row(row), Row(row + plane.pitch)};
        auto next = words.lower;
        for (std::int32_t n = 1; n <= reach_; ++n) {
            row += plane.pitch;
            const auto its = hn::Eq(y_, hn::Set(ints, n));
            words.upper = hn::IfThenElse(its, next, words.upper);
            next = Row(row + plane.pitch);
            words.lower = hn::IfThenElse(its, next, words.lower);
        }
        if constexpr (sizeof(Sample) == 1) {
            words.upper = hn::IfThenElse(isOdd_, hn::ShiftRight<8>(words.upper), words.upper);
            words.lower = hn::IfThenElse(isOdd_, hn::ShiftRight<8>(words.lower), words.lower);
        }
        return words;
    }

  private:
    using VecI = hn::Vec<IntsOf<Floats>>;
    static constexpr int perWord = 4 / sizeof(Sample);
    // Rows beyond two; with more of them loading one by one is as good.
    static constexpr std::int32_t mostRows = 4;

#if HWY_TARGET != HWY_SCALAR
    // The least of the low and of the high halves of all lanes.
    template <class Ints>
    static HWY_INLINE std::uint32_t LeastHalves(Ints ints, hn::Vec<Ints> value) {
        if constexpr (hn::MaxLanes(ints) > 4) {
            const hn::Half<Ints> half;
            const auto low = hn::LowerHalf(half, value);
            return LeastHalves(half, Lesser(half, low, hn::UpperHalf(half, value)));
        } else {
            value = Lesser(ints, value, hn::Shuffle1032(value));
            value = Lesser(ints, value, hn::Shuffle2301(value));
            return static_cast<std::uint32_t>(hn::GetLane(value));
        }
    }
    template <class Ints>
    static HWY_INLINE hn::Vec<Ints> Lesser(Ints ints, hn::Vec<Ints> a, hn::Vec<Ints> b) {
        const hn::Repartition<std::uint16_t, Ints> halves;
        return hn::BitCast(ints, hn::Min(hn::BitCast(halves, a), hn::BitCast(halves, b)));
    }
#endif

    static hn::Mask<IntsOf<Floats>> IsSet(VecI value, std::int32_t bit) {
        const IntsOf<Floats> ints;
        return hn::Ne(hn::And(value, hn::Set(ints, bit)), hn::Zero(ints));
    }
    // The words that begin at whole ones and, for positions half a word further, those between.
    HWY_INLINE VecI Row(const std::byte* row) const {
        const IntsOf<Floats> ints;
        const auto indices = hn::IndicesFromVec(ints, word_);
        const auto* const words = reinterpret_cast<const std::int32_t*>(row);
        const auto* const between = reinterpret_cast<const std::int32_t*>(row + 2);
        return hn::IfThenElse(isHalfway_, hn::TableLookupLanes(hn::LoadU(ints, between), indices),
                              hn::TableLookupLanes(hn::LoadU(ints, words), indices));
    }

    VecI word_, y_;
    hn::Mask<IntsOf<Floats>> isHalfway_, isOdd_;
    std::int32_t left_ = 0, top_ = 0;
    int reach_;
    bool fits_ = false;
};

template <class Floats>
HWY_NOINLINE Words<Floats> LoadOneByOne(Floats d, const ConstPlane& plane, const Places<Floats>& at,
                                        std::ptrdiff_t sampleBytes) {
    const IntsOf<Floats> ints;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> y;
    hn::Store(at.x, ints, x.data());
    hn::Store(at.y, ints, y.data());
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> upper;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> lower;
    for (std::size_t n = 0; n < hn::Lanes(d); ++n) {
        const std::byte* const place = plane.first + y[n] * plane.pitch + x[n] * sampleBytes;
        std::memcpy(&upper[n], place, sizeof upper[n]);
        std::memcpy(&lower[n], place + plane.pitch, sizeof lower[n]);
    }
    return {hn::Load(ints, upper.data()), hn::Load(ints, lower.data())};
}

template <class Sample, class Floats>
HWY_INLINE hn::Vec<Floats> Across(Floats d, hn::Vec<IntsOf<Floats>> words, hn::Vec<Floats> part) {
    const IntsOf<Floats> ints;
    constexpr int bits = 8 * sizeof(Sample);
    const auto mask = hn::Set(ints, (1 << bits) - 1);
    return Between(hn::ConvertTo(d, hn::And(words, mask)),
                   hn::ConvertTo(d, hn::And(hn::ShiftRight<bits>(words), mask)), part);
}

template <class Sample, class Floats>
using LevelsOf = hn::Vec<hn::Rebind<Sample, Floats>>;

template <class Sample, class Floats>
HWY_INLINE LevelsOf<Sample, Floats> Blended(const Words<Floats>& words, const Places<Floats>& at,
                                            float rounding) {
    const Floats d;
    const auto level = Between(Across<Sample>(d, words.upper, at.partX),
                               Across<Sample>(d, words.lower, at.partX), at.partY);
    const auto shifted = hn::Add(hn::Add(level, hn::Set(d, rounding)), hn::Set(d, wholeShift));
    return hn::TruncateTo(hn::Rebind<Sample, Floats>(),
                          hn::BitCast(hn::Rebind<std::uint32_t, Floats>(), shifted));
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
