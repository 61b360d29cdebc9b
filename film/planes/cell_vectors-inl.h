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

// Two neighbouring samples of each lane.
template <class Sample, class Floats>
HWY_INLINE void LoadPairs(Floats d, const std::byte* first, const std::int32_t* offsets,
                          std::array<hn::Vec<Floats>, 2>& pair) {
    const IntsOf<Floats> ints;
    constexpr int bits = 8 * sizeof(Sample);
    const auto mask = hn::Set(ints, (1 << bits) - 1);
    // Sooner than the library's gathering on the processors measured.
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> words;
    for (std::size_t n = 0; n < hn::Lanes(d); ++n) {
        std::memcpy(&words[n], first + offsets[n], sizeof words[n]);
    }
    const auto both = hn::Load(ints, words.data());
    pair[0] = hn::ConvertTo(d, hn::And(both, mask));
    pair[1] = hn::ConvertTo(d, hn::And(hn::ShiftRight<bits>(both), mask));
}

// All neighbours are on the plane.
template <class Sample, class Floats>
HWY_INLINE void StoreInside(Floats d, const PlanePair& plane, const Places<Floats>& at,
                            Sample* out) {
    const IntsOf<Floats> ints;
    const auto pitch = static_cast<std::int32_t>(plane.source.pitch);
    const auto columns = sizeof(Sample) == 2 ? hn::ShiftLeft<1>(at.x) : at.x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> offsets;
    hn::Store(hn::Add(hn::Mul(at.y, hn::Set(ints, pitch)), columns), ints, offsets.data());
    std::array<hn::Vec<Floats>, 2> upper;
    std::array<hn::Vec<Floats>, 2> lower;
    LoadPairs<Sample>(d, plane.source.first, offsets.data(), upper);
    LoadPairs<Sample>(d, plane.source.first + pitch, offsets.data(), lower);
    const auto level = Between(Between(upper[0], upper[1], at.partX),
                               Between(lower[0], lower[1], at.partX), at.partY);
    const auto shifted =
        hn::Add(hn::Add(level, hn::Set(d, plane.rounding)), hn::Set(d, wholeShift));
    const auto whole = hn::And(hn::BitCast(ints, shifted), hn::Set(ints, 0xFFFF));
    const hn::Rebind<Sample, IntsOf<Floats>> narrow;
    hn::StoreU(hn::DemoteTo(narrow, whole), narrow, out);
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
