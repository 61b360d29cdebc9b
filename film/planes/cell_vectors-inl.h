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
#include <cmath>
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

// A vector has neighbouring samples of one row or, where it is long, of two: what they are read
// from lies closer together than that of a long row.
template <class Floats>
struct Shape {
    static constexpr int rows = hn::MaxLanes(Floats()) > 8 ? 2 : 1;
    static constexpr int columns = static_cast<int>(hn::MaxLanes(Floats())) / rows;

    // One number for all of a row.
    static HWY_INLINE hn::Vec<Floats> ByRow(float first, [[maybe_unused]] float second) {
        const Floats d;
        if constexpr (rows == 2) {
            return hn::IfThenElse(hn::FirstN(d, columns), hn::Set(d, first), hn::Set(d, second));
        } else {
            return hn::Set(d, first);
        }
    }
    // 0, 1, 2 ... from the first column of a row.
    static HWY_INLINE hn::Vec<Floats> Columns() {
        return hn::Sub(hn::Iota(Floats(), 0.0F), ByRow(0.0F, columns));
    }
    // What is at a place and, of the second row, so much further.
    template <class T>
    static HWY_INLINE hn::Vec<hn::Rebind<T, Floats>> Load(const T* from,
                                                          [[maybe_unused]] std::ptrdiff_t pitch) {
        const hn::Rebind<T, Floats> d;
#if HWY_TARGET != HWY_SCALAR
        if constexpr (rows == 2) {
            const hn::Half<decltype(d)> half;
            return hn::Combine(d, hn::LoadU(half, from + pitch), hn::LoadU(half, from));
        }
#endif
        return hn::LoadU(d, from);
    }
    // To a place and, of the second row, to another one, if there is one.
    template <class T>
    static HWY_INLINE void Store(hn::Vec<hn::Rebind<T, Floats>> values, T* to,
                                 [[maybe_unused]] T* second) {
        const hn::Rebind<T, Floats> d;
#if HWY_TARGET != HWY_SCALAR
        if constexpr (rows == 2) {
            const hn::Half<decltype(d)> half;
            hn::StoreU(hn::LowerHalf(half, values), half, to);
            if (second != nullptr) {
                hn::StoreU(hn::UpperHalf(half, values), half, second);
            }
            return;
        }
#endif
        hn::StoreU(values, d, to);
    }
};

// What a polynomial of a cell is along its columns: cubics of the share of the way down.
template <class Floats>
class ColumnPolynomials {
  public:
    // from: 0 for x, 4 for y. across: the shares of the columns.
    ColumnPolynomials(const CellPolynomial& cell, std::size_t from, hn::Vec<Floats> across)
        : c0_(Along(cell.c[0].data() + from, across)),
          c1_(Along(cell.c[1].data() + from, across)),
          c2_(Along(cell.c[2].data() + from, across)),
          c3_(Along(cell.c[3].data() + from, across)) {}
    HWY_INLINE hn::Vec<Floats> At(hn::Vec<Floats> down) const {
        return TimesPlus(TimesPlus(TimesPlus(c3_, down, c2_), down, c1_), down, c0_);
    }

  private:
    static HWY_INLINE hn::Vec<Floats> Along(const float* c, hn::Vec<Floats> across) {
        const Floats d;
        auto sum = TimesPlus(hn::Set(d, c[3]), across, hn::Set(d, c[2]));
        sum = TimesPlus(sum, across, hn::Set(d, c[1]));
        return TimesPlus(sum, across, hn::Set(d, c[0]));
    }

    hn::Vec<Floats> c0_, c1_, c2_, c3_;
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
          x_(cell.baseX, grid.stepX, grid.shiftX),
          y_(cell.baseY, grid.stepY, grid.shiftY),
          perColumn_(static_cast<float>(grid.stepX) / cellSide),
          firstColumn_(static_cast<float>(grid.shiftX) / cellSide),
          perRow_(static_cast<float>(grid.stepY) / cellSide),
          firstRow_(static_cast<float>(grid.shiftY) / cellSide) {}

    // Rows of the source that a vector of positions spans, as good as always.
    int Reach(const SampleGrid& grid) const {
        const auto at = [&](std::size_t m, std::size_t n) { return cell_.c[m][4 + n]; };
        const float across = std::fabs(at(0, 1) + at(0, 2) + at(0, 3)) / 2.0F;
        const float bend = std::fabs(at(1, 1)) / 2.0F + std::fabs(at(0, 2)) / 2.0F;
        const float down = (std::fabs(at(1, 0)) + std::fabs(at(2, 0))) / cellSide;
        const float rows =
            (across * static_cast<float>(grid.stepX) + bend) / static_cast<float>(grid.stepY) +
            down;
        return 1 + static_cast<int>(std::min(rows, 100.0F));
    }

    // From a column of the cell on.
    template <class Floats>
    class Columns {
      public:
        Columns(const ByPolynomial& cell, int column)
            : its_(cell),
              x_(cell.cell_, 0, cell.Across<Floats>(column)),
              y_(cell.cell_, 4, cell.Across<Floats>(column)) {}
        HWY_INLINE Places<Floats> At(int row) const {
            const Floats d;
            const auto down = Shape<Floats>::ByRow(its_.Down(row), its_.Down(row + 1));
            Places<Floats> places;
            its_.x_.Split(d, x_.At(down), places.x, places.partX);
            its_.y_.Split(d, y_.At(down), places.y, places.partY);
            return places;
        }

      private:
        const ByPolynomial& its_;
        ColumnPolynomials<Floats> x_, y_;
    };

  private:
    template <class Floats>
    HWY_INLINE hn::Vec<Floats> Across(int column) const {
        const Floats d;
        const auto columns =
            hn::Add(Shape<Floats>::Columns(), hn::Set(d, static_cast<float>(column)));
        return TimesPlus(columns, hn::Set(d, perColumn_), hn::Set(d, firstColumn_));
    }
    float Down(int row) const { return static_cast<float>(row) * perRow_ + firstRow_; }

    const CellPolynomial& cell_;
    Axis x_, y_;
    float perColumn_, firstColumn_, perRow_, firstRow_;
};

// Positions one by one.
class ByList {
  public:
    ByList(const SampleGrid& grid, const std::int32_t* block)
        : block_(block), columns_(grid.CellColumns()) {}

    int Reach(const SampleGrid& /*grid*/) const { return 3; }

    template <class Floats>
    class Columns {
      public:
        Columns(const ByList& cell, int column)
            : x_(cell.block_ + column), columns_(cell.columns_) {}
        HWY_INLINE Places<Floats> At(int row) const {
            const std::int32_t* const x = x_ + 2 * row * columns_;
            Places<Floats> places;
            Take(x, places.x, places.partX);
            Take(x + columns_, places.y, places.partY);
            return places;
        }

      private:
        HWY_INLINE void Take(const std::int32_t* from, hn::Vec<IntsOf<Floats>>& whole,
                             hn::Vec<Floats>& part) const {
            const Floats d;
            const IntsOf<Floats> ints;
            const auto fixed = Shape<Floats>::Load(from, 2 * columns_);
            whole = hn::ShiftRight<16>(fixed);
            part = hn::Mul(hn::ConvertTo(d, hn::And(fixed, hn::Set(ints, 0xFFFF))),
                           hn::Set(d, static_cast<float>(1.0 / placesPerSample)));
        }

        const std::int32_t* x_;
        int columns_;
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
