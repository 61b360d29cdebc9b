// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a conversion does to the photo's pixels, in numbers. Throws std::bad_alloc only.
#pragma once

#include "remap/analysis/clean_crop.h"
#include "remap/analysis/source_coverage.h"

namespace varnel {

struct ProjectionMetrics {
    // Photo pixels for each pixel of the result, along a line, in the result's middle: above 1 the
    // result is too small to show all that is there. Nothing when the middle is black. An unrolled
    // result has one point of the photo along its middle: there it is half way up to the rim.
    std::optional<double> centreResolution;
    bool halfWay = false;
    // The result's pixels for each of the photo's, the way they are drawn out most, at the worst of
    // the corners. A corner that shows nothing of the circle counts where, on the way from it to
    // the middle, the circle begins.
    std::optional<double> cornerStretch;
    double keptShare = 0.0;  // of the circle, 0 to 1
    CleanCrop rectangle;
};

// The coverage has to be that of the same grid.
ProjectionMetrics MeasureResult(const MappingMesh& grid, const SourceCoverage& kept);

// By how much a line grows from the photo to the result.
enum class Magnified : std::uint8_t { Nothing, Shrunk, AboutSame, Stretched };
inline constexpr double aboutSame = 1.1;  // up to a tenth either way

// By the values of a magnification map; 0, less and no number mean Nothing.
Magnified ClassOf(double magnification);

// The cells of the grid, row by row from the bottom.
struct MagnificationMap {
    int columns = 0;
    int rows = 0;
    std::vector<float> magnification;  // 0 where the result shows nothing of the circle

    float At(int column, int row) const {
        return magnification[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                             static_cast<std::size_t>(column)];
    }
};

// Empty for a grid of fewer than two columns or rows.
MagnificationMap MapMagnification(const MappingMesh& grid);

}  // namespace varnel
