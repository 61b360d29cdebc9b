// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Compiled once for each instruction set; up to sixteen samples at a time.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "film/planes/cell_kernels.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <algorithm>
#include <cmath>

#include "film/planes/cell_kernels.h"
#include "film/planes/cell_vectors-inl.h"
#include "film/planes/cell_windows-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

// A position by its left upper neighbour.
struct BorderPlace {
    std::int32_t x, y;
    float partX, partY;
};

// The same as for vectors, sample by sample.
template <class Sample>
class BorderReader {
  public:
    BorderReader(const BandDrawing& drawing, const PlanePair& plane)
        : drawing_(drawing), plane_(plane) {}

    // Off the plane as the nearest sample, and darkened as brightness is: colour must not fade
    // where the picture is still bright.
    Sample At(const BorderPlace& at) const {
        const SampleGrid& grid = drawing_.samples;
        const PixelSize size = drawing_.brightnessSize;
        const double share =
            ShareOf((at.x + static_cast<double>(at.partX)) * grid.stepX + grid.shiftX, size.width) *
            ShareOf((at.y + static_cast<double>(at.partY)) * grid.stepY + grid.shiftY, size.height);
        if (share == 0.0) {
            return Whole(plane_.blank);
        }
        const float level = Blend(at);
        return Whole(share == 1.0
                         ? level
                         : plane_.blank + (level - plane_.blank) * static_cast<float>(share));
    }

  private:
    // How much of the picture a position in samples of brightness shows: 1 between the first and
    // the last, less to both sides.
    static double ShareOf(double at, int size) {
        return std::clamp(std::min(at + 1.0, size - at), 0.0, 1.0);
    }
    Sample Whole(float level) const {
        return static_cast<Sample>(std::nearbyint(level + plane_.rounding));
    }
    float Blend(const BorderPlace& at) const {
        const float a = SampleAt(at.x, at.y);
        const float c = SampleAt(at.x, at.y + 1);
        const float upper = (SampleAt(at.x + 1, at.y) - a) * at.partX + a;
        const float lower = (SampleAt(at.x + 1, at.y + 1) - c) * at.partX + c;
        return (lower - upper) * at.partY + upper;
    }
    float SampleAt(std::int32_t x, std::int32_t y) const {
        x = std::clamp(x, 0, drawing_.source.width - 1);
        y = std::clamp(y, 0, drawing_.source.height - 1);
        Sample sample;
        std::memcpy(&sample,
                    plane_.source.first + y * plane_.source.pitch +
                        x * static_cast<std::ptrdiff_t>(sizeof sample),
                    sizeof sample);
        return static_cast<float>(sample);
    }

    const BandDrawing& drawing_;
    const PlanePair& plane_;
};

template <class Sample, class Floats>
HWY_NOINLINE void BlendBorder(const BandDrawing& drawing, const PlanePair& plane,
                              const Places<Floats>& at, std::array<Sample, lanesAtMost>& levels) {
    const IntsOf<Floats> ints;
    const Floats floats;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> y;
    HWY_ALIGN std::array<float, lanesAtMost> partX;
    HWY_ALIGN std::array<float, lanesAtMost> partY;
    hn::Store(at.x, ints, x.data());
    hn::Store(at.y, ints, y.data());
    hn::Store(at.partX, floats, partX.data());
    hn::Store(at.partY, floats, partY.data());
    const BorderReader<Sample> reader(drawing, plane);
    for (std::size_t n = 0; n < hn::Lanes(floats); ++n) {
        levels[n] = reader.At({x[n], y[n], partX[n], partY[n]});
    }
}

// Where a cell is on the planes.
struct CellArea {
    int column = 0, row = 0;
    int columns = 0, rows = 0;  // of those that the result has
};

template <class Sample>
Sample* RowOf(const PlanePair& plane, const CellArea& area, int row) {
    return reinterpret_cast<Sample*>(plane.result.first + (area.row + row) * plane.result.pitch) +
           area.column;
}

// Whole cells with all neighbours on the planes.
template <class Sample, class Floats, class Positions>
void DrawInside(const BandDrawing& drawing, const CellArea& area, const Positions& positions) {
    using Its = Shape<Floats>;
    const Floats d;
    const int reach = positions.Reach(drawing.samples);
    for (int k = 0; k < area.columns; k += Its::columns) {
        const typename Positions::template Columns<Floats> its(positions, k);
        for (int row = 0; row < area.rows; row += Its::rows) {
            const Places<Floats> at = its.At(row);
            const Window<Sample, Floats> window(at, drawing.source, reach);
            const Blender<Sample, Floats> blender(at);
            for (const PlanePair& plane : drawing.planes) {
                const Pairs<Floats> pairs = window.Fits()
                                                ? window.Load(plane.source)
                                                : LoadOneByOne<Sample>(d, plane.source, at);
                const auto levels = blender.Levels(pairs, plane.rounding);
                const bool hasSecond = row + 1 < area.rows;
                Its::template Store<Sample>(
                    levels, RowOf<Sample>(plane, area, row) + k,
                    hasSecond ? RowOf<Sample>(plane, area, row + 1) + k : nullptr);
            }
        }
    }
}

// What is beyond the result is worked out and not stored.
template <class Sample, class Floats, class Positions>
void DrawBorder(const BandDrawing& drawing, const CellArea& area, const Positions& positions) {
    using Its = Shape<Floats>;
    std::array<Sample, lanesAtMost> levels;
    for (int k = 0; k < area.columns; k += Its::columns) {
        const typename Positions::template Columns<Floats> its(positions, k);
        for (int row = 0; row < area.rows; row += Its::rows) {
            const Places<Floats> at = its.At(row);
            for (const PlanePair& plane : drawing.planes) {
                BlendBorder(drawing, plane, at, levels);
                for (int n = 0; n < std::min(Its::rows, area.rows - row); ++n) {
                    std::copy_n(levels.data() + n * Its::columns,
                                std::min(Its::columns, area.columns - k),
                                RowOf<Sample>(plane, area, row + n) + k);
                }
            }
        }
    }
}

template <class Sample>
void DrawBlank(const BandDrawing& drawing, const CellArea& area) {
    for (const PlanePair& plane : drawing.planes) {
        for (int row = 0; row < area.rows; ++row) {
            std::fill_n(RowOf<Sample>(plane, area, row), area.columns,
                        static_cast<Sample>(plane.blank));
        }
    }
}

template <class Sample, class Floats>
void DrawCell(const BandDrawing& drawing, std::size_t n) {
    const SampleGrid& grid = drawing.samples;
    const BandOfGrid& of = drawing.band.of[drawing.id];
    const CellPolynomial& cell = drawing.band.cells[n];
    const int column = static_cast<int>(n) * grid.CellColumns();
    const CellArea area{column, drawing.firstRow,
                        std::min(grid.CellColumns(), drawing.result.width - column),
                        std::min(grid.CellRows(), drawing.result.height - drawing.firstRow)};
    const ByPolynomial polynomial(grid, cell);
    const ByList list(grid, of.places.data() + static_cast<std::ptrdiff_t>(cell.block) * 2 *
                                                   grid.CellColumns() * grid.CellRows());
    const bool isWhole = area.columns == grid.CellColumns();
    switch (of.kinds[n]) {
        case CellKind::Blank:
            return DrawBlank<Sample>(drawing, area);
        case CellKind::Inside:
            return isWhole ? DrawInside<Sample, Floats>(drawing, area, polynomial)
                           : DrawBorder<Sample, Floats>(drawing, area, polynomial);
        case CellKind::Border:
            return DrawBorder<Sample, Floats>(drawing, area, polynomial);
        case CellKind::PixelsInside:
            return isWhole ? DrawInside<Sample, Floats>(drawing, area, list)
                           : DrawBorder<Sample, Floats>(drawing, area, list);
        case CellKind::Pixels:
            return DrawBorder<Sample, Floats>(drawing, area, list);
    }
}

// A little before a cell is drawn: its right border on the source, the left one being that of the
// cell before it, and where it goes to. Cells touch few bytes of many rows, which the processor
// does not foresee.
void Fetch(const BandDrawing& drawing, std::size_t n) {
    if (n >= drawing.band.cells.size() ||
        drawing.band.of[drawing.id].kinds[n] != CellKind::Inside) {
        return;
    }
    const SampleGrid& grid = drawing.samples;
    const CellPolynomial& cell = drawing.band.cells[n];
    const auto sum = [&](std::size_t m, std::size_t from) {
        const auto& c = cell.c[m];
        return c[from] + c[from + 1] + c[from + 2] + c[from + 3];
    };
    const auto x = (cell.baseX + static_cast<std::ptrdiff_t>(sum(0, 0))) / grid.stepX;
    const auto top = (cell.baseY + static_cast<std::ptrdiff_t>(sum(0, 4))) / grid.stepY;
    const auto down = static_cast<std::ptrdiff_t>(sum(1, 4) + sum(2, 4) + sum(3, 4)) / grid.stepY;
    const std::ptrdiff_t first =
        std::clamp<std::ptrdiff_t>(std::min(top, top + down), 0, drawing.source.height - 1);
    const std::ptrdiff_t last = std::clamp<std::ptrdiff_t>(
        std::max(top, top + down) + 1, first,
        std::min<std::ptrdiff_t>(first + 2 * cellSide, drawing.source.height - 1));
    const std::ptrdiff_t column = std::clamp<std::ptrdiff_t>(x, 0, drawing.source.width - 1);
    for (const PlanePair& plane : drawing.planes) {
        const std::byte* from = plane.source.first + column * drawing.bytesPerSample;
        for (std::ptrdiff_t row = first; row <= last; ++row) {
            __builtin_prefetch(from + row * plane.source.pitch);
        }
    }
}

template <class Sample>
void DrawCells(const BandDrawing& drawing) {
    constexpr std::size_t ahead = 4;
    for (std::size_t n = 0; n < drawing.band.cells.size(); ++n) {
        Fetch(drawing, n + ahead);
        DrawCell<Sample, hn::CappedTag<float, lanesAtMost>>(drawing, n);
    }
}

void DrawBandImpl(const BandDrawing& drawing) {
    if (drawing.bytesPerSample == 1) {
        DrawCells<std::uint8_t>(drawing);
    } else {
        DrawCells<std::uint16_t>(drawing);
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
