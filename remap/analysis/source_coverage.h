// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The converted picture seen on the photo: its border as curves and what of the image circle it
// keeps. Positions as in inverse_mapping.h. Throws std::bad_alloc only.
#pragma once

#include <cstdint>
#include <vector>

#include "remap/analysis/mapping_mesh.h"

namespace varnel {

// Points in order; a whole border ends where it began.
using SourceCurve = std::vector<SourcePosition>;

// The places of the outermost pixels of the converted picture, pointsPerSide on each side: every
// point is one that the conversion reads. Split where the border leaves the photo, is black or
// jumps.
std::vector<SourceCurve> BorderCurves(const InverseMapping& places, int pointsPerSide = 160);

// The photo in square cells, row by row from the bottom.
struct SourceCoverage {
    enum : std::uint8_t { Photo = 1, Kept = 2 };  // in circle and picture; shown in the result

    int columns = 0;
    int rows = 0;
    double cell = 1.0;  // pixels
    std::vector<std::uint8_t> cells;
    // Of the circle as far as the photo shows it, 0 to 1.
    double share = 0.0;

    bool Lost(int column, int row) const {
        return cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                     static_cast<std::size_t>(column)] == Photo;
    }
    // True where the converted picture shows the photo.
    bool Keeps(const SourcePosition& place) const;
};

// columns: cells along the photo's longer side, at least 1.
SourceCoverage MeasureCoverage(const MappingMesh& grid, int columns = 400);

// The closed border of what is kept, also where it runs off the photo; what it does not enclose is
// lost. Nothing when no single outline shows that: a border that is black in places or folds over.
std::optional<SourceCurve> CoverageOutline(const InverseMapping& places, const SourceCoverage& kept,
                                           int pointsPerSide = 160);

}  // namespace varnel
