// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Compiled once for each instruction set.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "film/planes/circle_cell.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <limits>

#include "film/planes/circle_cell.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Doubles = hn::CappedTag<double, cellSide / 2>;  // so that colour fills whole vectors, too
using VecD = hn::Vec<Doubles>;

// Adding it leaves the nearest whole number, ties to even, in the low bits.
constexpr double wholeShift = 6755399441055744.0;  // 1.5 * 2^52

HWY_INLINE VecD Nearest(VecD value) {
    const auto shift = hn::Set(Doubles(), wholeShift);
    return hn::Sub(hn::Add(value, shift), shift);
}

// Of all vectors that were seen.
class Range {
  public:
    Range()
        : least_(hn::Set(Doubles(), std::numeric_limits<double>::max())),
          most_(hn::Set(Doubles(), std::numeric_limits<double>::lowest())) {}
    HWY_INLINE void Take(VecD value) {
        least_ = hn::Min(least_, value);
        most_ = hn::Max(most_, value);
    }
    double Least() const { return hn::GetLane(hn::MinOfLanes(Doubles(), least_)); }
    double Most() const { return hn::GetLane(hn::MaxOfLanes(Doubles(), most_)); }

  private:
    VecD least_, most_;
};

PositionBounds FillPositionsImpl(const CircleCell& cell, CellPositions& positions) {
    const Doubles d;
    Range rangeX, rangeY;
    double* x = positions.x.data();
    double* y = positions.y.data();
    for (int row = 0; row < cellSide; ++row, x += cellSide, y += cellSide) {
        const auto radius = hn::Set(d, cell.radii[row]);
        for (std::size_t n = 0; n < cellSide; n += hn::Lanes(d)) {
            const auto across =
                hn::Add(hn::Set(d, cell.centreX), hn::Mul(radius, hn::LoadU(d, cell.cosines + n)));
            const auto up =
                hn::Add(hn::Set(d, cell.centreY), hn::Mul(radius, hn::LoadU(d, cell.sines + n)));
            const auto down = hn::Sub(hn::Set(d, cell.topRow), Nearest(up));
            rangeX.Take(across);
            rangeY.Take(down);
            hn::Store(across, d, x + n);
            hn::Store(down, d, y + n);
        }
    }
    return {rangeX.Least(), rangeX.Most(), rangeY.Least(), rangeY.Most()};
}

// The sums of the one or two samples across that a vector's lanes share.
HWY_INLINE VecD SharedAcross(const double* from, bool isStep, bool isMean) {
    const Doubles d;
    if (!isStep) {
        return hn::Load(d, from);
    }
    VecD left, right;
    hn::LoadInterleaved2(d, from, left, right);
    return isMean ? hn::Add(left, right) : left;
}

// From the mean of so many positions to 1/65536 samples of the plane.
class FixedPlaces {
  public:
    FixedPlaces(int step, double shift, int shared)
        : scale_(placesPerSample / step / shared), offset_(-shift / step * placesPerSample) {}
    HWY_INLINE void Store(VecD sum, std::int32_t* to) const {
        const Doubles d;
        const auto place = hn::Add(hn::Add(hn::Mul(sum, hn::Set(d, scale_)), hn::Set(d, offset_)),
                                   hn::Set(d, wholeShift));
        const hn::Rebind<std::uint64_t, Doubles> bits;
        const hn::Rebind<std::uint32_t, Doubles> words;
        hn::StoreU(hn::TruncateTo(words, hn::BitCast(bits, place)), words,
                   reinterpret_cast<std::uint32_t*>(to));
    }

  private:
    double scale_, offset_;
};

void TakePositionsImpl(const CellPositions& positions, const SampleGrid& grid,
                       std::int32_t* block) {
    const bool meanAcross = grid.shiftX == 0.5;
    const bool meanDown = grid.shiftY == 0.5;
    const int shared = (meanAcross ? 2 : 1) * (meanDown ? 2 : 1);
    const FixedPlaces fixedX(grid.stepX, grid.shiftX, shared);
    const FixedPlaces fixedY(grid.stepY, grid.shiftY, shared);
    const int columns = grid.CellColumns();
    const int lanes = static_cast<int>(hn::Lanes(Doubles()));
    const auto sumAt = [&](const double* from) {
        const auto sum = SharedAcross(from, grid.stepX == 2, meanAcross);
        return meanDown ? hn::Add(sum, SharedAcross(from + cellSide, grid.stepX == 2, meanAcross))
                        : sum;
    };
    for (int row = 0; row < grid.CellRows(); ++row, block += 2 * columns) {
        const int top = row * grid.stepY + (grid.shiftY == 1.0 ? 1 : 0);
        for (int n = 0; n < columns; n += lanes) {
            const std::ptrdiff_t from = top * cellSide + n * grid.stepX;
            fixedX.Store(sumAt(positions.x.data() + from), block + n);
            fixedY.Store(sumAt(positions.y.data() + from), block + columns + n);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(FillPositionsImpl);
HWY_EXPORT(TakePositionsImpl);

PositionBounds FillPositions(const CircleCell& cell, CellPositions& positions) {
    return HWY_DYNAMIC_DISPATCH(FillPositionsImpl)(cell, positions);
}

void TakePositions(const CellPositions& positions, const SampleGrid& grid, std::int32_t* block) {
    HWY_DYNAMIC_DISPATCH(TakePositionsImpl)(positions, grid, block);
}

}  // namespace varnel
#endif
