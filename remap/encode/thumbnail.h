// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A small copy of a picture for its metadata.
#pragma once

#include <vector>

#include "base/line_range.h"
#include "remap/image/bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel {

// At most 160 x 120 pixels, 120 x 160 of a picture that stands upright, and never larger than the
// bitmap, which has 24 bits. Few pixels are looked at: a large picture takes half a millisecond.
// Throws std::bad_alloc.
BitmapHandle ThumbnailOf(const Bitmap* bitmap);

// The same of a picture whose rows come by and by, all of them once.
class ThumbnailSampler {
  public:
    explicit ThumbnailSampler(PixelSize picture);
    // Rows from the bottom row. Several threads may bring different rows at once.
    void Take(const Bitmap& bitmap, LineRange rows);
    BitmapHandle Thumbnail() const;

  private:
    PixelSize size_;                            // of the thumbnail
    std::vector<std::int32_t> columns_, rows_;  // where the samples lie
    std::vector<PixelColor> samples_;           // row by row
};

}  // namespace varnel
