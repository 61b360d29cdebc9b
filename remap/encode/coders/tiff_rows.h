// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Rows of a bitmap as a TIFF file has them: red first, each sample less the one of the pixel before
// it, in the file's order of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "remap/image/pixel_format.h"

namespace varnel {

// How a file predicts samples; the numbers are those of its tag.
enum class TiffPredictor : std::uint8_t { None = 1, Differences = 2, FloatingPoint = 3 };

// The one that makes samples of a kind small.
constexpr TiffPredictor PredictorFor(SampleKind samples) {
    return samples == SampleKind::Float ? TiffPredictor::FloatingPoint : TiffPredictor::Differences;
}

class TiffRows {
  public:
    // Throws std::bad_alloc.
    TiffRows(PixelFormat format, std::size_t width, TiffPredictor predictor, bool bigEndian);

    // A row of the bitmap into as many bytes. Throws nothing.
    void Put(const std::uint8_t* row, std::uint8_t* out);

  private:
    template <class Sample>
    void PutSamples(const std::uint8_t* row, std::uint8_t* out) const;
    void PutPlanes(std::uint8_t* out);

    const PixelFormat format_;
    const std::size_t width_;
    const TiffPredictor predictor_;
    const bool swaps_;  // the bytes of a sample lie the other way round in the file
    std::vector<std::uint8_t> row_;
};

}  // namespace varnel
