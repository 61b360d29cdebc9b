// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Vectors of samples for cell_kernels.cpp, which includes this once for each instruction set.
// Products and sums are kept apart, because fused ones would give other levels where there are any.
// Throws nothing.

#if defined(VARNEL_CELL_VECTORS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_CELL_VECTORS_INL
#undef VARNEL_CELL_VECTORS_INL
#else
#define VARNEL_CELL_VECTORS_INL
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "film/planes/cell_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int lanesAtMost = 16;

// What adding it leaves in the low bits of a float is the nearest whole number; good for numbers of
// less than 22 bits. The conversions of the library take several steps to be right for all others.
constexpr float wholeShift = 12582912.0F;  // 1.5 * 2^23
constexpr std::int32_t wholeShiftBits = 0x4B400000;

template <class Floats>
using IntsOf = hn::Rebind<std::int32_t, Floats>;

// Where a vector of samples is read: the left upper neighbours and what is left, 0 to 1.
template <class Floats>
struct Places {
    hn::Vec<IntsOf<Floats>> x, y;
    hn::Vec<Floats> partX, partY;
};

template <class V>
HWY_INLINE V TimesPlus(V a, V b, V c) {
    return hn::Add(hn::Mul(a, b), c);
}

template <class V>
HWY_INLINE V Between(V a, V b, V part) {
    return TimesPlus(hn::Sub(b, a), part, a);
}

// The polynomials of a row: of x, then of y.
class RowPolynomial {
  public:
    // down is the share of the way down the cell.
    RowPolynomial(const CellPolynomial& cell, float down) {
        const hn::CappedTag<float, 8> d;
        const auto share = hn::Set(d, down);
        for (std::size_t n = 0; n < 8; n += hn::Lanes(d)) {
            auto sum = TimesPlus(hn::Load(d, cell.c[3].data() + n), share,
                                 hn::Load(d, cell.c[2].data() + n));
            sum = TimesPlus(sum, share, hn::Load(d, cell.c[1].data() + n));
            sum = TimesPlus(sum, share, hn::Load(d, cell.c[0].data() + n));
            hn::Store(sum, d, c_.data() + n);
        }
    }
    template <std::size_t from, class Floats>
    HWY_INLINE hn::Vec<Floats> At(Floats d, hn::Vec<Floats> across) const {
        auto sum = TimesPlus(hn::Set(d, c_[from + 3]), across, hn::Set(d, c_[from + 2]));
        sum = TimesPlus(sum, across, hn::Set(d, c_[from + 1]));
        return TimesPlus(sum, across, hn::Set(d, c_[from]));
    }

  private:
    alignas(32) std::array<float, 8> c_;
};

// An axis of a plane: how positions in samples of brightness from a base become its own.
class Axis {
  public:
    Axis(std::int32_t base, int step, double shift)
        : base_((step == 2 ? base >> 1 : base) - wholeShiftBits),
          more_(step == 2 ? static_cast<float>((base & 1) - shift) : 0.0F),
          halves_(step == 2) {}

    template <class Floats>
    HWY_INLINE void Split(Floats d, hn::Vec<Floats> offset, hn::Vec<IntsOf<Floats>>& whole,
                          hn::Vec<Floats>& part) const {
        if (halves_) {
            offset = hn::Mul(hn::Add(offset, hn::Set(d, more_)), hn::Set(d, 0.5F));
        }
        const IntsOf<Floats> ints;
        const auto floor = hn::Floor(offset);
        part = hn::Sub(offset, floor);
        whole = hn::Add(hn::BitCast(ints, hn::Add(floor, hn::Set(d, wholeShift))),
                        hn::Set(ints, base_));
    }

  private:
    std::int32_t base_;
    float more_;  // what the halved base leaves
    bool halves_;
};

// Positions by the polynomial of a cell.
class ByPolynomial {
  public:
    ByPolynomial(const SampleGrid& grid, const CellPolynomial& cell)
        : cell_(cell),
          grid_(grid),
          x_(cell.baseX, grid.stepX, grid.shiftX),
          y_(cell.baseY, grid.stepY, grid.shiftY),
          step_(static_cast<float>(grid.stepX) / cellSide),
          shift_(static_cast<float>(grid.shiftX) / cellSide) {}

    class Row {
      public:
        Row(const ByPolynomial& cell, int row)
            : its_(cell),
              row_(cell.cell_,
                   static_cast<float>((row * cell.grid_.stepY + cell.grid_.shiftY) / cellSide)) {}
        template <class Floats>
        HWY_INLINE Places<Floats> At(Floats d, int k) const {
            const auto across = TimesPlus(hn::Iota(d, static_cast<float>(k)),
                                          hn::Set(d, its_.step_), hn::Set(d, its_.shift_));
            Places<Floats> places;
            its_.x_.Split(d, row_.At<0>(d, across), places.x, places.partX);
            its_.y_.Split(d, row_.At<4>(d, across), places.y, places.partY);
            return places;
        }

      private:
        const ByPolynomial& its_;
        RowPolynomial row_;
    };

  private:
    const CellPolynomial& cell_;
    const SampleGrid& grid_;
    Axis x_, y_;
    float step_, shift_;
};

// Positions one by one.
class ByList {
  public:
    ByList(const SampleGrid& grid, const std::int32_t* block)
        : block_(block), columns_(grid.CellColumns()) {}

    class Row {
      public:
        Row(const ByList& cell, int row)
            : x_(cell.block_ + 2 * row * cell.columns_), y_(x_ + cell.columns_) {}
        template <class Floats>
        HWY_INLINE Places<Floats> At(Floats d, int k) const {
            Places<Floats> places;
            Take(d, x_ + k, places.x, places.partX);
            Take(d, y_ + k, places.y, places.partY);
            return places;
        }

      private:
        template <class Floats>
        static HWY_INLINE void Take(Floats d, const std::int32_t* from,
                                    hn::Vec<IntsOf<Floats>>& whole, hn::Vec<Floats>& part) {
            const IntsOf<Floats> ints;
            const auto fixed = hn::LoadU(ints, from);
            whole = hn::ShiftRight<16>(fixed);
            part = hn::Mul(hn::ConvertTo(d, hn::And(fixed, hn::Set(ints, 0xFFFF))),
                           hn::Set(d, static_cast<float>(1.0 / placesPerSample)));
        }

        const std::int32_t* x_;
        const std::int32_t* y_;
    };

  private:
    const std::int32_t* block_;
    int columns_;
};

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
    Window([[maybe_unused]] Floats d, [[maybe_unused]] const Places<Floats>& at,
           [[maybe_unused]] PixelSize plane) {
#if HWY_TARGET != HWY_SCALAR
        const IntsOf<Floats> ints;
        const std::size_t last = hn::Lanes(d) - 1;
        const std::int32_t lastX = hn::ExtractLane(at.x, last);
        const std::int32_t lastY = hn::ExtractLane(at.y, last);
        left_ = std::min(hn::GetLane(at.x), lastX);
        top_ = std::min(hn::GetLane(at.y), lastY);
        rows_ = std::max(hn::GetLane(at.y), lastY) - top_;
        const int samples = perWord * static_cast<int>(hn::Lanes(d));
        const auto x = hn::Sub(at.x, hn::Set(ints, left_));
        y_ = hn::Sub(at.y, hn::Set(ints, top_));
        word_ = hn::ShiftRight<perWord / 2>(x);
        isHalfway_ = IsSet(x, perWord / 2);
        isOdd_ = IsSet(x, 1);
        const auto zero = hn::Zero(ints);
        const auto least = hn::Min(x, y_);
        const auto tooFar =
            hn::Or(hn::Gt(x, hn::Set(ints, samples - perWord)), hn::Gt(y_, hn::Set(ints, rows_)));
        fits_ = rows_ <= mostRows && left_ + samples + perWord <= plane.width &&
                hn::AllFalse(ints, hn::Or(tooFar, hn::Lt(least, zero)));
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
        for (std::int32_t n = 1; n <= rows_; ++n) {
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
    std::int32_t left_ = 0, top_ = 0, rows_ = 0;
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
HWY_INLINE void StoreBlend(Floats d, const Words<Floats>& words, const Places<Floats>& at,
                           float rounding, Sample* out) {
    const IntsOf<Floats> ints;
    const auto level = Between(Across<Sample>(d, words.upper, at.partX),
                               Across<Sample>(d, words.lower, at.partX), at.partY);
    const auto shifted = hn::Add(hn::Add(level, hn::Set(d, rounding)), hn::Set(d, wholeShift));
    const auto whole = hn::And(hn::BitCast(ints, shifted), hn::Set(ints, 0xFFFF));
    const hn::Rebind<Sample, IntsOf<Floats>> narrow;
    hn::StoreU(hn::DemoteTo(narrow, whole), narrow, out);
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
