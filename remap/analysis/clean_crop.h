// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The part of the converted picture that can be cut out without any black in it. Throws
// std::bad_alloc only.
#pragma once

#include "remap/analysis/mapping_mesh.h"

namespace varnel {

// Pixels of the converted picture; rows count from the bottom.
struct CleanCrop {
    int left = 0;
    int bottom = 0;
    int width = 0;
    int height = 0;
};

// The largest upright rectangle of the result that shows nothing but the photo within its circle.
// Found on the grid, widened to the pixel and then looked at along its whole rim. Empty when there
// is none as large as a cell of the grid.
CleanCrop FindCleanCrop(const MappingMesh& grid);

}  // namespace varnel
