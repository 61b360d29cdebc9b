// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos as JPEG files with 4:2:0 colours have them: brightness for each pixel, colour for each
// four. That is half the memory of pixels of 24 bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "base/pixel_size.h"
#include "remap/image/bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel {

// Its pixels are those that the decoder makes of the same samples, bit for bit: colours between
// samples are three parts of the nearer and one of the farther one, down and across, and turned
// into red, green and blue with 16 bits behind the point (ITU-T T.871).
class PlanarPicture {
  public:
    // Without samples yet. Throws std::bad_alloc.
    explicit PlanarPicture(PixelSize size);

    PixelSize Size() const { return size_; }
    // In colour samples.
    PixelSize ColourSize() const { return {(size_.width + 1) / 2, (size_.height + 1) / 2}; }

    // Rows count from the top here. A row of brightness, three bytes of anything behind it.
    std::uint8_t* Brightness(std::ptrdiff_t row) { return brightness_ + row * pitch_; }
    const std::uint8_t* Brightness(std::ptrdiff_t row) const { return brightness_ + row * pitch_; }
    // A row of colours: blue less brightness, red less brightness, and so on. A row above the first
    // one, one below the last, a sample to the left and two to the right repeat those at the edge.
    const std::uint8_t* Colours(std::ptrdiff_t row) const { return colours_ + row * colourPitch_; }
    std::ptrdiff_t Pitch() const { return pitch_; }
    std::ptrdiff_t ColourPitch() const { return colourPitch_; }

    // The samples of a row of colours, which come in their own order: from the first row on.
    void TakeColours(int row, const std::uint8_t* blue, const std::uint8_t* red);

    // The pixel at (x, y), which is on the picture, y from the bottom row.
    PixelColor At(std::int32_t x, std::int32_t y) const;
    // Row y of pixels, counted from the bottom, as Bgr8.
    void CopyRow(std::int32_t y, std::uint8_t* out) const;
    // All pixels with 24 bits, without metadata. Throws std::bad_alloc.
    BitmapHandle Pixels() const;

  private:
    PixelSize size_;
    std::ptrdiff_t pitch_;
    std::ptrdiff_t colourPitch_;
    std::shared_ptr<std::byte> memory_;
    std::uint8_t* brightness_;
    std::uint8_t* colours_;
};

}  // namespace varnel
