// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The row filters of PNG for samples of 8 and 16 bits, with and without alpha. Rows here come from
// the top downward. The constructor throws std::bad_alloc, the rest nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "remap/image/pixel_format.h"

namespace varnel {

// Filters one row after the other. Of the five filters it takes the one that leaves the smallest
// sum of absolute differences, as libpng does, but looks at a quarter of long rows only.
class PngFilter {
  public:
    // format: not of floating point. rowBytes: of the pixels of a row. above: the row above the
    // first one, blue, green, red; empty at the top of the picture.
    PngFilter(std::size_t rowBytes, std::span<const std::uint8_t> above,
              PixelFormat format = PixelFormat::Bgr8);

    // Takes a row of rowBytes bytes. Returns the filter's number and the filtered row in the order
    // red, green, blue, the high byte of each first, which hold until the next call.
    std::span<const std::uint8_t> Next(std::span<const std::uint8_t> row);

  private:
    void Take(std::span<const std::uint8_t> row);

    PixelFormat format_;
    std::size_t pixelBytes_;
    std::vector<std::uint8_t> row_;       // after a black pixel, in the file's order of colours
    std::vector<std::uint8_t> above_;     // likewise
    std::vector<std::uint8_t> filtered_;  // the filter's number first
};

}  // namespace varnel
