// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The image circle of a photo in memory.
#pragma once

#include "remap/analysis/circle_finder.h"
#include "remap/image/bitmap.h"

namespace varnel {

// In pixels of the photo, 24 bits, as circle_finder.h says; looked for on a reduced copy. Throws
// std::bad_alloc.
std::optional<FoundCircle> FindPhotoCircle(const Bitmap* photo);

}  // namespace varnel
