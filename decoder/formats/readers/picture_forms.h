// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures brought to other forms: turned, of fewer bits, reduced. Throws std::bad_alloc.
#pragma once

#include <utility>

#include "remap/image/bitmap.h"
#include "remap/image/exif_orientation.h"

namespace varnel {

inline PixelRows RowsOf(Bitmap& bitmap) {
    return {reinterpret_cast<std::byte*>(bitmap.Bits()), static_cast<std::size_t>(bitmap.Pitch()),
            bitmap.Format()};
}

// The metadata of a picture for the same turned by the orientation.
inline BitmapMetadata TurnedMetadata(BitmapMetadata metadata, int orientation) {
    if (SwapsSides(orientation)) {
        std::swap(metadata.dotsPerMetreX, metadata.dotsPerMetreY);
    }
    return metadata;
}

// The bitmap's pixels and metadata, turned by the orientation, into one that has their size and
// format by then.
void TurnInto(Bitmap& turned, Bitmap bitmap, int orientation);

// The picture in 24 bits, with its metadata; alpha is dropped.
BitmapHandle InBytes(BitmapHandle bitmap);

// A picture of 24 bits, reduced to fit the box, in pixels, where it does not; without metadata.
BitmapHandle Reduced(BitmapHandle bitmap, PixelSize box);

}  // namespace varnel
