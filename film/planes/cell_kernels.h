// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The inner loops: rows of cells from planes to planes. Their vector code is in cell_kernels.cpp
// alone and chooses the instruction set when it runs; the levels are the same on all of them. Rows
// count from the top row. Throws nothing.
#pragma once

#include <span>

#include "film/planes/cells.h"

namespace varnel {

// A plane of the source and where it goes to.
struct PlanePair {
    ConstPlane source;
    Plane result;
    float blank = 0.0F;     // the level where nothing is shown
    float rounding = 0.0F;  // what a level gets before it becomes the nearest whole one
};

// A row of cells for planes whose samples lie at the same places.
struct BandDrawing {
    const Band& band;
    GridId id = brightness;
    SampleGrid samples;
    PixelSize brightnessSize;  // of the source
    PixelSize source, result;  // of the planes, samples
    int firstRow = 0;          // on the planes of the result
    int bytesPerSample = 1;
    std::span<const PlanePair> planes;
};

void DrawBand(const BandDrawing& drawing);

}  // namespace varnel
