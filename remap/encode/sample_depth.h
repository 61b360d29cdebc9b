// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures with other samples. Words and bytes stand for the same part of their range. Floating
// point without a colour profile is linear light, which 8 and 16 bits have coded by the curve of
// sRGB; with a profile all are coded by it. What is beyond black and white is cut off then.
#pragma once

#include <memory>

#include "base/block_runner.h"
#include "remap/image/bitmap.h"
#include "remap/image/row_source.h"

namespace varnel {

// A copy with such samples, metadata included; blocks of rows are shared out by the runner. Throws
// std::bad_alloc and what the runner throws.
BitmapHandle InSamples(const Bitmap& bitmap, SampleKind samples, BlockRunner& runner);

class SampleConversion;

// The same of rows that come and go.
class RowsInSamples : public RowSource {
  public:
    // The rows, which have to outlive it, are those of a picture that has such metadata.
    RowsInSamples(RowSource& rows, const Bitmap& picture, SampleKind samples);
    ~RowsInSamples() override;

    // The picture with these samples, but for the pixels. Throws std::bad_alloc.
    BitmapHandle WithoutPixels() const;
    // Throws std::bad_alloc, too.
    void WithRows(LineRange rows, const std::function<void(const Bitmap&)>& use) const override;
    void End() override { rows_.End(); }

  private:
    RowSource& rows_;
    const Bitmap picture_;
    const SampleKind samples_;
    const std::unique_ptr<const SampleConversion> conversion_;
};

}  // namespace varnel
