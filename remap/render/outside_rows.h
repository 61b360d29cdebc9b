// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A row of a result whose outside is filled by how much of the photo each pixel shows. Throws
// nothing.
#pragma once

#include "remap/image/bitmap.h"
#include "state/records/outside_fill.h"

namespace varnel {

// The samples that hold how much of the photo pixels of a format show; 8 bits are drawn sooner.
constexpr SampleKind CoverageFor(PixelFormat format) {
    return format == PixelFormat::Bgr8 ? SampleKind::Byte : SampleKind::Word;
}

// A row of a result and the same row of its coverage, in samples of CoverageFor its format.
class OutsideRow {
  public:
    // Rows count from the bottom: that of the result, and which of the coverage's it is.
    OutsideRow(Bitmap& result, std::int32_t row, const Bitmap& coverage, std::int32_t coverageRow);

    // What shows nothing of the photo, in the fill's colour; a checkerboard for what is transparent
    // to be. Beside it what is transparent on the photo stays so.
    void Fill(const OutsideFill& fill) const;
    // Transparent where nothing of the photo is shown: to the same row of a bitmap with alpha,
    // whose samples are of the result's kind. It may be the result.
    void TakeAlpha(Bitmap& withAlpha) const;

  private:
    void FillBytes(const OutsideFill& fill) const;
    void FillLevels(const OutsideFill& fill) const;
    void TakeAlphaOfBytes(std::uint8_t* out) const;
    void TakeAlphaOfLevels(Bitmap& withAlpha) const;

    Bitmap& result_;
    std::int32_t row_;
    const std::uint8_t* coverage_;
};

}  // namespace varnel
