// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The row filters of PNG for pictures of 24 and 32 bits. Rows here come from the top downward. The
// constructor throws std::bad_alloc, the rest nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace varnel {

// Filters one row after the other. Of the five filters it takes the one that leaves the smallest
// sum of absolute differences, as libpng does.
class PngFilter {
  public:
    // pixelBytes: 3 or, with alpha, 4. rowBytes: so many for each pixel. above: the row above the
    // first one, blue, green, red; empty at the top of the picture.
    PngFilter(std::size_t rowBytes, std::span<const std::uint8_t> above,
              std::size_t pixelBytes = 3);

    // Takes a row of rowBytes bytes. Returns the filter's number and the filtered row in the order
    // red, green, blue, which hold until the next call.
    std::span<const std::uint8_t> Next(std::span<const std::uint8_t> row);

  private:
    void Take(std::span<const std::uint8_t> row);

    std::size_t pixelBytes_;
    std::vector<std::uint8_t> row_;        // after a black pixel, in the file's order of colours
    std::vector<std::uint8_t> above_;      // likewise
    std::vector<std::uint8_t> candidate_;  // the filter's number first
    std::vector<std::uint8_t> best_;
};

}  // namespace varnel
