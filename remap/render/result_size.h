// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Results in another size or shape than the one that they are saved in. Sizes are in pixels. Throws
// nothing but for want of memory.
#pragma once

#include "remap/projection/record_maps.h"

namespace varnel {

// The record's view, crop and shape in that size.
OutputWish AtSize(const ImageRecord& image, PixelSize size);

// The same picture before its crop: as large, that is, as what is cut from.
ImageRecord WithoutCrop(const ImageRecord& image, PixelSize photo);
// As large as the photo, and nothing cut off.
ImageRecord ShapedAsPhoto(const ImageRecord& image);

}  // namespace varnel
