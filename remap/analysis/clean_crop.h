// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The part of the converted picture that can be cut out without any black in it. Throws
// std::bad_alloc, and what maps throw where it says so.
#pragma once

#include <optional>
#include <span>

#include "base/block_runner.h"
#include "remap/analysis/mapping_mesh.h"

namespace varnel {

// Pixels of the converted picture; rows count from the bottom.
struct CleanCrop {
    int left = 0;
    int bottom = 0;
    int width = 0;
    int height = 0;
};

// Of conversions of one photo with one circle, all of one size: the largest upright rectangle of a
// frame of that size in which every pixel of each of them lies within the photo and its circle;
// with a shape (width by height) the largest of that shape. Looks at every pixel. The records' own
// sizes and crops do not count. Empty when there is none. Throws as the conversion does.
struct CleanCropWish {
    std::span<const ImageRecord> records;
    PixelSize photo;
    PixelSize frame;
    std::optional<double> shape{};
};
CleanCrop ExactCleanCrop(const CleanCropWish& wish, BlockRunner& runner);

// A guess at it for a measure that is shown while numbers change, from the pixels of a net:
// the largest upright rectangle of the result that shows nothing but the photo within its circle.
// Found on the grid, widened to the pixel and then looked at along its whole rim. Empty when there
// is none as large as a cell of the grid.
CleanCrop FindCleanCrop(const MappingMesh& grid);

}  // namespace varnel
