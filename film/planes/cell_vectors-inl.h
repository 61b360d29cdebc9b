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

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
