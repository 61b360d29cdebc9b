// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Source positions of the cells of maps that unroll circles, in vectors. Such maps read whole rows,
// so no polynomial has their positions. Rows count from the top row. Throws nothing.
#pragma once

#include <array>

#include "film/planes/cells.h"

namespace varnel {

// A cell all of whose samples are shown.
struct CircleCell {
    const double* cosines = nullptr;  // of the directions of its columns
    const double* sines = nullptr;
    const double* radii = nullptr;  // of its rows, pixels of the source
    double centreX = 0.0;
    double centreY = 0.0;  // from the bottom row
    double topRow = 0.0;   // from the bottom row, too
};

// Positions of samples of brightness, row by row.
struct CellPositions {
    alignas(64) std::array<double, cellSide * cellSide> x;
    alignas(64) std::array<double, cellSide * cellSide> y;  // whole rows from the top row
};

// What the positions of a cell lie between.
struct PositionBounds {
    double leastX = 0.0, mostX = 0.0;
    double leastY = 0.0, mostY = 0.0;
};

PositionBounds FillPositions(const CircleCell& cell, CellPositions& positions);

// As the block of a grid's samples wants them (see Band): the means of those that share a sample.
void TakePositions(const CellPositions& positions, const SampleGrid& grid, std::int32_t* block);

}  // namespace varnel
