// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The tables that frames are drawn by: the result in cells of brightness samples, each with the
// polynomial that its source positions follow, or with every position by itself. Rows count from
// the top row, positions are in pixels of the source's brightness. Throws nothing but for want of
// memory.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "film/frames/frame_format.h"

namespace varnel {

// Samples of brightness across and down. 16 pixels of a fisheye picture follow a cubic to less than
// a thousandth of a pixel, and those of colour still fill a vector.
inline constexpr int cellSide = 16;

// Source positions of a cell around a whole base: x and y are polynomials of the third degree in
// the shares 0 to 1 of the way across and down. c[m] has what multiplies the m-th power of the
// share down: the coefficients of x by ascending powers of the share across, then those of y.
struct alignas(32) CellPolynomial {
    std::array<std::array<float, 8>, 4> c;
    std::int32_t baseX = 0;
    std::int32_t baseY = 0;
    std::uint32_t block = 0;  // of Pixels cells: which of the band's blocks of positions
};

// How the samples of a cell are worked out.
enum class CellKind : std::uint8_t {
    Blank,         // show nothing
    Inside,        // by the polynomial, all neighbours on the plane
    Border,        // by the polynomial, neighbours may be off the plane
    PixelsInside,  // positions one by one, all neighbours on the plane
    Pixels
};

// A position one by one: 1/65536 samples of the plane; x is nowhere where nothing is shown.
inline constexpr std::int32_t nowhere = std::numeric_limits<std::int32_t>::min();
inline constexpr double placesPerSample = 65536.0;

// The samples of a plane among those of brightness, on the source as on the result.
struct SampleGrid {
    int stepX = 1, stepY = 1;           // samples of brightness for one: 1 or 2
    double shiftX = 0.0, shiftY = 0.0;  // where it lies among them: 0, 0.5 or 1

    static SampleGrid Of(const FrameFormat& format, int plane) {
        const PixelSize sharing = SharingOf(format, plane);
        using enum ChromaSite;
        const bool isLeft =
            format.site == Left || format.site == TopLeft || format.site == BottomLeft;
        const bool isTop = format.site == TopLeft || format.site == Top;
        const bool isBottom = format.site == BottomLeft || format.site == Bottom;
        SampleGrid grid{sharing.width, sharing.height, 0.0, 0.0};
        if (grid.stepX == 2 && !isLeft) {
            grid.shiftX = 0.5;
        }
        if (grid.stepY == 2 && !isTop) {
            grid.shiftY = isBottom ? 1.0 : 0.5;
        }
        return grid;
    }
    int CellColumns() const { return cellSide / stepX; }
    int CellRows() const { return cellSide / stepY; }
    // Of a position in samples of brightness.
    double ColumnOf(double x) const { return (x - shiftX) / stepX; }
    double RowOf(double y) const { return (y - shiftY) / stepY; }
};

// What a row of cells has for one grid of samples. A block of positions has for each row of the
// cell first all of x and then all of y.
struct BandOfGrid {
    std::vector<CellKind> kinds;
    std::vector<std::int32_t> places;
};

enum GridId : std::size_t { brightness, colour, grids };

inline GridId GridOf(const FrameFormat& format, int plane) {
    return SharingOf(format, plane).width > 1 ? colour : brightness;
}

// A row of cells.
struct Band {
    std::vector<CellPolynomial> cells;
    std::array<BandOfGrid, grids> of;
};

}  // namespace varnel
