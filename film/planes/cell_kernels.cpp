// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Compiled once for each instruction set; up to eight samples at a time. Products and sums are kept
// apart, because a fused one would give other levels where there is one.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "film/planes/cell_kernels.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "film/planes/cell_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int lanesAtMost = 8;
using Floats = hn::CappedTag<float, lanesAtMost>;
using Ints = hn::Rebind<std::int32_t, Floats>;
using VecF = hn::Vec<Floats>;
using VecI = hn::Vec<Ints>;

// Where a vector of samples is read: the left upper neighbours and what is left, 0 to 1.
struct Places {
    VecI x, y;
    VecF partX, partY;
};

// The part of a plane's row that a cell has, and the cell.
struct CellRow {
    const CellPolynomial& cell;
    const std::int32_t* places = nullptr;  // of the row, of Pixels cells
    float down = 0.0F;                     // share of the way down the cell
    bool inside = false;
    int column = 0, row = 0, count = 0;  // on the plane
};

HWY_INLINE VecF TimesPlus(VecF a, VecF b, VecF c) {
    return hn::Add(hn::Mul(a, b), c);
}

// The polynomials of a row: of x, then of y.
struct RowPolynomial {
    HWY_ALIGN std::array<float, 8> c;

    RowPolynomial(const CellPolynomial& cell, float down) {
        for (std::size_t n = 0; n < 8; ++n) {
            c[n] =
                ((cell.c[3][n] * down + cell.c[2][n]) * down + cell.c[1][n]) * down + cell.c[0][n];
        }
    }
    template <std::size_t from>
    HWY_INLINE VecF At(VecF across) const {
        const Floats d;
        VecF sum = TimesPlus(hn::Set(d, c[from + 3]), across, hn::Set(d, c[from + 2]));
        sum = TimesPlus(sum, across, hn::Set(d, c[from + 1]));
        return TimesPlus(sum, across, hn::Set(d, c[from]));
    }
};

HWY_INLINE void Split(VecF offset, std::int32_t base, VecI& whole, VecF& part) {
    const VecF floor = hn::Floor(offset);
    whole = hn::Add(hn::ConvertTo(Ints(), floor), hn::Set(Ints(), base));
    part = hn::Sub(offset, floor);
}

// Positions by the polynomial, as they count on a plane.
class Polynomial {
  public:
    Polynomial(const SampleGrid& grid, const CellRow& row)
        : row_(row.cell, row.down),
          baseX_(row.cell.baseX),
          baseY_(row.cell.baseY),
          grid_(grid),
          step_(static_cast<float>(grid.stepX) / cellSide),
          shift_(static_cast<float>(grid.shiftX) / cellSide) {}

    HWY_INLINE Places At(int k) const {
        const Floats d;
        const VecF across =
            TimesPlus(hn::Iota(d, static_cast<float>(k)), hn::Set(d, step_), hn::Set(d, shift_));
        Places places;
        Take(row_.At<0>(across), baseX_, grid_.stepX, grid_.shiftX, places.x, places.partX);
        Take(row_.At<4>(across), baseY_, grid_.stepY, grid_.shiftY, places.y, places.partY);
        return places;
    }

  private:
    HWY_INLINE void Take(VecF offset, std::int32_t base, int step, double shift, VecI& whole,
                         VecF& part) const {
        if (step == 2) {
            // The base's half that is left goes to the offset.
            const auto more = static_cast<float>((base & 1) - shift);
            const Floats d;
            offset = hn::Mul(hn::Add(offset, hn::Set(d, more)), hn::Set(d, 0.5F));
            base >>= 1;
        }
        Split(offset, base, whole, part);
    }

    RowPolynomial row_;
    std::int32_t baseX_, baseY_;
    const SampleGrid& grid_;
    float step_, shift_;
};

// Positions one by one.
class Listed {
  public:
    Listed(const SampleGrid& grid, const CellRow& row)
        : x_(row.places), y_(row.places + grid.CellColumns()) {}

    HWY_INLINE Places At(int k) const {
        Places places;
        Take(x_ + k, places.x, places.partX);
        Take(y_ + k, places.y, places.partY);
        return places;
    }

  private:
    static HWY_INLINE void Take(const std::int32_t* from, VecI& whole, VecF& part) {
        const Ints d;
        const VecI fixed = hn::LoadU(d, from);
        whole = hn::ShiftRight<16>(fixed);
        part = hn::Mul(hn::ConvertTo(Floats(), hn::And(fixed, hn::Set(d, 0xFFFF))),
                       hn::Set(Floats(), static_cast<float>(1.0 / placesPerSample)));
    }

    const std::int32_t* x_;
    const std::int32_t* y_;
};

// Two neighbouring samples of each lane.
template <class Sample>
HWY_INLINE void LoadPairs(const std::byte* first, VecI offsets, VecF& left, VecF& right) {
    const Ints d;
    const VecI words = hn::GatherOffset(d, reinterpret_cast<const std::int32_t*>(first), offsets);
    constexpr int bits = 8 * sizeof(Sample);
    const VecI mask = hn::Set(d, (1 << bits) - 1);
    left = hn::ConvertTo(Floats(), hn::And(words, mask));
    right = hn::ConvertTo(Floats(), hn::And(hn::ShiftRight<bits>(words), mask));
}

HWY_INLINE VecF Between(VecF a, VecF b, VecF part) {
    return TimesPlus(hn::Sub(b, a), part, a);
}

template <class Sample>
HWY_INLINE VecI LevelsInside(const PlanePair& plane, const Places& at) {
    const Ints ints;
    const VecI rows = hn::Mul(at.y, hn::Set(ints, static_cast<std::int32_t>(plane.source.pitch)));
    const VecI columns = sizeof(Sample) == 2 ? hn::ShiftLeft<1>(at.x) : at.x;
    const VecI offsets = hn::Add(rows, columns);
    VecF a, b, c, d;
    LoadPairs<Sample>(plane.source.first, offsets, a, b);
    LoadPairs<Sample>(plane.source.first + plane.source.pitch, offsets, c, d);
    const VecF level = Between(Between(a, b, at.partX), Between(c, d, at.partX), at.partY);
    return hn::ConvertTo(ints, hn::Add(level, hn::Set(Floats(), plane.rounding)));
}

template <class Sample>
struct Reader {
    const BandDrawing& drawing;
    const PlanePair& plane;

    float At(std::int32_t x, std::int32_t y) const {
        x = std::clamp(x, 0, drawing.source.width - 1);
        y = std::clamp(y, 0, drawing.source.height - 1);
        Sample sample;
        std::memcpy(&sample,
                    plane.source.first + y * plane.source.pitch +
                        x * static_cast<std::ptrdiff_t>(sizeof sample),
                    sizeof sample);
        return static_cast<float>(sample);
    }
};

// How much of the picture a position in samples of brightness shows: 1 between the first and the
// last, less to both sides.
inline double ShareOf(double at, int size) {
    return std::clamp(std::min(at + 1.0, size - at), 0.0, 1.0);
}

// Off the plane as the nearest sample, and darkened as brightness is: colour must not fade where
// the picture is still bright.
template <class Sample>
float BorderLevel(const BandDrawing& drawing, const PlanePair& plane, std::int32_t x,
                  std::int32_t y, float partX, float partY) {
    const SampleGrid& grid = drawing.samples;
    const double share = ShareOf((x + static_cast<double>(partX)) * grid.stepX + grid.shiftX,
                                 drawing.brightnessSize.width) *
                         ShareOf((y + static_cast<double>(partY)) * grid.stepY + grid.shiftY,
                                 drawing.brightnessSize.height);
    if (share == 0.0) {
        return plane.blank;
    }
    const Reader<Sample> read{drawing, plane};
    const float a = read.At(x, y);
    const float c = read.At(x, y + 1);
    const float upper = (read.At(x + 1, y) - a) * partX + a;
    const float lower = (read.At(x + 1, y + 1) - c) * partX + c;
    const float level = (lower - upper) * partY + upper;
    return share == 1.0 ? level : plane.blank + (level - plane.blank) * static_cast<float>(share);
}

template <class Sample>
HWY_NOINLINE void StoreBorder(const BandDrawing& drawing, const PlanePair& plane, const Places& at,
                              Sample* out) {
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> y;
    HWY_ALIGN std::array<float, lanesAtMost> partX;
    HWY_ALIGN std::array<float, lanesAtMost> partY;
    hn::Store(at.x, Ints(), x.data());
    hn::Store(at.y, Ints(), y.data());
    hn::Store(at.partX, Floats(), partX.data());
    hn::Store(at.partY, Floats(), partY.data());
    for (std::size_t n = 0; n < hn::Lanes(Floats()); ++n) {
        const float level = BorderLevel<Sample>(drawing, plane, x[n], y[n], partX[n], partY[n]);
        out[n] = static_cast<Sample>(level + plane.rounding);
    }
}

// A row of a cell. What is beyond the result is worked out and not stored.
template <class Sample, class Positions>
void DrawCellRow(const BandDrawing& drawing, const CellRow& row) {
    const Positions positions(drawing.samples, row);
    const int lanes = static_cast<int>(hn::Lanes(Floats()));
    const hn::Rebind<Sample, Ints> narrow;
    for (int k = 0; k < row.count; k += lanes) {
        const Places at = positions.At(k);
        for (const PlanePair& plane : drawing.planes) {
            auto* const out =
                reinterpret_cast<Sample*>(plane.result.first + row.row * plane.result.pitch) +
                row.column + k;
            HWY_ALIGN std::array<Sample, lanesAtMost> rest;
            const bool fits = k + lanes <= row.count;
            Sample* const target = fits ? out : rest.data();
            if (row.inside) {
                hn::StoreU(hn::DemoteTo(narrow, LevelsInside<Sample>(plane, at)), narrow, target);
            } else {
                StoreBorder(drawing, plane, at, target);
            }
            if (!fits) {
                std::copy_n(rest.data(), row.count - k, out);
            }
        }
    }
}

template <class Sample>
void BlankCellRow(const BandDrawing& drawing, const CellRow& row) {
    for (const PlanePair& plane : drawing.planes) {
        auto* const out =
            reinterpret_cast<Sample*>(plane.result.first + row.row * plane.result.pitch);
        std::fill_n(out + row.column, row.count, static_cast<Sample>(plane.blank));
    }
}

template <class Sample>
void DrawCell(const BandDrawing& drawing, std::size_t n) {
    const SampleGrid& grid = drawing.samples;
    const BandOfGrid& of = drawing.band.of[drawing.id];
    const CellPolynomial& cell = drawing.band.cells[n];
    const CellKind kind = of.kinds[n];
    const int column = static_cast<int>(n) * grid.CellColumns();
    const int rows = std::min(grid.CellRows(), drawing.result.height - drawing.firstRow);
    const bool isListed = kind == CellKind::Pixels || kind == CellKind::PixelsInside;
    const auto* places = isListed ? of.places.data() + static_cast<std::ptrdiff_t>(cell.block) * 2 *
                                                           grid.CellColumns() * grid.CellRows()
                                  : nullptr;
    for (int row = 0; row < rows; ++row) {
        const CellRow its{cell,
                          places + (isListed ? row * 2 * grid.CellColumns() : 0),
                          static_cast<float>((row * grid.stepY + grid.shiftY) / cellSide),
                          kind == CellKind::Inside || kind == CellKind::PixelsInside,
                          column,
                          drawing.firstRow + row,
                          std::min(grid.CellColumns(), drawing.result.width - column)};
        if (kind == CellKind::Blank) {
            BlankCellRow<Sample>(drawing, its);
        } else if (isListed) {
            DrawCellRow<Sample, Listed>(drawing, its);
        } else {
            DrawCellRow<Sample, Polynomial>(drawing, its);
        }
    }
}

void DrawBandImpl(const BandDrawing& drawing) {
    for (std::size_t n = 0; n < drawing.band.cells.size(); ++n) {
        if (drawing.bytesPerSample == 1) {
            DrawCell<std::uint8_t>(drawing, n);
        } else {
            DrawCell<std::uint16_t>(drawing, n);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(DrawBandImpl);

void DrawBand(const BandDrawing& drawing) {
    HWY_DYNAMIC_DISPATCH(DrawBandImpl)(drawing);
}

}  // namespace varnel
#endif
