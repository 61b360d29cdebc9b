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

// Two neighbouring samples of each lane, 16 bits each: the left one in the low half.
template <class Floats>
struct Pairs {
    hn::Vec<IntsOf<Floats>> upper, lower;  // of the rows above and below the positions
};

// The two lowest bytes of each lane.
template <class Ints>
HWY_INLINE hn::Vec<Ints> BytesInHalves(hn::Vec<Ints> words) {
    const Ints ints;
    return hn::Or(hn::And(words, hn::Set(ints, 0xFF)),
                  hn::And(hn::ShiftLeft<8>(words), hn::Set(ints, 0xFF0000)));
}

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
        x_ = hn::Sub(at.x, hn::Set(ints, left_));
        y_ = hn::Sub(at.y, hn::Set(ints, top_));
        if constexpr (sizeof(Sample) == 1) {
            isNarrow_ = hn::AllTrue(ints, hn::Lt(x_, hn::Set(ints, blockBytes - 1)));
        }
        const auto isTooFar =
            hn::Or(hn::Gt(x_, hn::Set(ints, samples - perWord)), hn::Gt(y_, hn::Set(ints, reach)));
        fits_ = reach <= mostRows && left_ + samples + perWord <= plane.width &&
                top_ + reach + 1 < plane.height && hn::AllFalse(ints, isTooFar);
#endif
    }
    bool Fits() const {
        return fits_;
    }

    HWY_INLINE Pairs<Floats> Load(const ConstPlane& plane) const {
        if constexpr (sizeof(Sample) == 1) {
            return isNarrow_ ? Rows(plane, FromBlock(x_)) : Whole(Rows(plane, FromWords(x_)));
        } else {
            return Rows(plane, FromWords(x_));
        }
    }

  private:
    using VecI = hn::Vec<IntsOf<Floats>>;
    static constexpr int perWord = 4 / sizeof(Sample);
    // Rows beyond two; with more of them loading one by one is as good.
    static constexpr std::int32_t mostRows = 4;
    static constexpr std::int32_t blockBytes = 16;  // that bytes are looked up in

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

    // A row of bytes where all lanes' neighbours lie within those that one instruction looks up.
    class FromBlock {
      public:
        // Bytes 0 and 2 of a lane from the position and from beside it, 1 and 3 zero.
        explicit FromBlock(VecI x)
            : bytes_(hn::Add(hn::Or(x, hn::ShiftLeft<16>(x)),
                             hn::Set(IntsOf<Floats>(), static_cast<std::int32_t>(0x80018000U)))) {}
        HWY_INLINE VecI operator()([[maybe_unused]] const std::byte* row) const {
#if HWY_TARGET == HWY_SCALAR
            return bytes_;  // no window fits there
#else
            const IntsOf<Floats> ints;
            const hn::Repartition<std::uint8_t, IntsOf<Floats>> bytes;
            const auto block = hn::LoadDup128(bytes, reinterpret_cast<const std::uint8_t*>(row));
            return hn::BitCast(ints, hn::TableLookupBytesOr0(block, hn::BitCast(bytes, bytes_)));
#endif
        }

      private:
        VecI bytes_;
    };

    // The words that begin at whole ones and, for positions half a word further, those between.
    class FromWords {
      public:
        explicit FromWords(VecI x)
            : word_(hn::ShiftRight<perWord / 2>(x)), isHalfway_(IsSet(x, perWord / 2)) {}
        HWY_INLINE VecI operator()(const std::byte* row) const {
            const IntsOf<Floats> ints;
            const auto indices = hn::IndicesFromVec(ints, word_);
            const auto* const words = reinterpret_cast<const std::int32_t*>(row);
            const auto* const between = reinterpret_cast<const std::int32_t*>(row + 2);
            return hn::IfThenElse(isHalfway_,
                                  hn::TableLookupLanes(hn::LoadU(ints, between), indices),
                                  hn::TableLookupLanes(hn::LoadU(ints, words), indices));
        }

      private:
        VecI word_;
        hn::Mask<IntsOf<Floats>> isHalfway_;
    };

    // Of words of bytes.
    HWY_INLINE Pairs<Floats> Whole(const Pairs<Floats>& words) const {
        const auto isOdd = IsSet(x_, 1);
        const auto whole = [&](VecI v) {
            return BytesInHalves<IntsOf<Floats>>(hn::IfThenElse(isOdd, hn::ShiftRight<8>(v), v));
        };
        return {whole(words.upper), whole(words.lower)};
    }

    template <class RowAt>
    HWY_INLINE Pairs<Floats> Rows(const ConstPlane& plane, const RowAt& rowAt) const {
        const IntsOf<Floats> ints;
        const std::byte* row =
            plane.first + top_ * plane.pitch + left_ * static_cast<std::ptrdiff_t>(sizeof(Sample));
        Pairs<Floats> pairs{rowAt(row), rowAt(row + plane.pitch)};
        auto next = pairs.lower;
        for (std::int32_t n = 1; n <= reach_; ++n) {
            row += plane.pitch;
            const auto its = hn::Eq(y_, hn::Set(ints, n));
            pairs.upper = hn::IfThenElse(its, next, pairs.upper);
            next = rowAt(row + plane.pitch);
            pairs.lower = hn::IfThenElse(its, next, pairs.lower);
        }
        return pairs;
    }

    VecI x_, y_;
    std::int32_t left_ = 0, top_ = 0;
    int reach_;
    bool fits_ = false, isNarrow_ = false;
};

template <class Sample, class Floats>
HWY_NOINLINE Pairs<Floats> LoadOneByOne(Floats d, const ConstPlane& plane,
                                        const Places<Floats>& at) {
    constexpr auto sampleBytes = static_cast<std::ptrdiff_t>(sizeof(Sample));
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
    const Pairs<Floats> words{hn::Load(ints, upper.data()), hn::Load(ints, lower.data())};
    if constexpr (sizeof(Sample) == 1) {
        return {BytesInHalves<IntsOf<Floats>>(words.upper),
                BytesInHalves<IntsOf<Floats>>(words.lower)};
    }
    return words;
}

// The sum of the products of the halves of each lane; signed.
template <class Ints>
HWY_INLINE hn::Vec<Ints> ProductsOfHalves(hn::Vec<Ints> a, hn::Vec<Ints> b) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128
    const Ints ints;
    const hn::Repartition<std::int16_t, Ints> halves;
    auto none = hn::Zero(ints);
    return hn::ReorderWidenMulAccumulate(ints, hn::BitCast(halves, a), hn::BitCast(halves, b), none,
                                         none);
#else  // elsewhere it does not stay in its lane
    const auto low = [&](hn::Vec<Ints> v) { return hn::ShiftRight<16>(hn::ShiftLeft<16>(v)); };
    return hn::Add(hn::Mul(low(a), low(b)), hn::Mul(hn::ShiftRight<16>(a), hn::ShiftRight<16>(b)));
#endif
}

template <class Sample, class Floats>
using LevelsOf = hn::Vec<hn::Rebind<Sample, Floats>>;

// Between the neighbours of a vector of positions.
template <class Sample, class Floats>
class Blender {
  public:
    explicit Blender(const Places<Floats>& at) : at_(at) {
        if constexpr (isByte) {
            const Floats d;
            const IntsOf<Floats> ints;
            const auto scaled = TimesPlus(at.partX, hn::Set(d, whole), hn::Set(d, wholeShift));
            const auto right = hn::And(hn::BitCast(ints, scaled), hn::Set(ints, 0xFFFF));
            weights_ = hn::Add(hn::Sub(hn::ShiftLeft<16>(right), right),
                               hn::Set(ints, static_cast<std::int32_t>(whole)));
        }
    }

    HWY_INLINE LevelsOf<Sample, Floats> Levels(const Pairs<Floats>& pairs, float rounding) const {
        constexpr float unit = isByte ? whole : 1.0F;
        const Floats d;
        const auto level = Between(Across(pairs.upper), Across(pairs.lower), at_.partY);
        const auto shifted =
            hn::Add(hn::Add(level, hn::Set(d, unit * rounding)), hn::Set(d, unit * wholeShift));
        return hn::TruncateTo(hn::Rebind<Sample, Floats>(),
                              hn::BitCast(hn::Rebind<std::uint32_t, Floats>(), shifted));
    }

  private:
    static constexpr bool isByte = sizeof(Sample) == 1;
    static constexpr float whole = 16384.0F;  // the weights of two bytes together

    // Levels times the whole for bytes.
    HWY_INLINE hn::Vec<Floats> Across(hn::Vec<IntsOf<Floats>> pairs) const {
        const Floats d;
        if constexpr (isByte) {
            return hn::ConvertTo(d, ProductsOfHalves<IntsOf<Floats>>(pairs, weights_));
        } else {
            const auto mask = hn::Set(IntsOf<Floats>(), 0xFFFF);
            return Between(hn::ConvertTo(d, hn::And(pairs, mask)),
                           hn::ConvertTo(d, hn::And(hn::ShiftRight<16>(pairs), mask)), at_.partX);
        }
    }

    const Places<Floats>& at_;
    hn::Vec<IntsOf<Floats>> weights_;
};

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
