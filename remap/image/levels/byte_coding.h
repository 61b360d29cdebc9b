// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Between the samples of a picture and the 8 bits that a viewer sees of them. Floating-point
// pictures without a colour profile are linear light, which the sRGB curve (IEC 61966-2-1) codes;
// all others are coded as their bytes would be. Throws nothing.
#pragma once

#include "remap/image/levels/pixel_levels.h"
#include "remap/image/levels/transfer_curve.h"

namespace varnel {

class ByteCoding {
  public:
    // The bitmap's as it is now; it is not kept.
    explicit ByteCoding(const Bitmap& bitmap)
        : format_(bitmap.Format()),
          samples_(SampleKindOf(bitmap.Format())),
          linear_(AreLight(samples_, bitmap.metadata.colourProfile)) {}

    // The pixel that begins there; of transparent ones, too.
    PixelColor ColourAt(const std::uint8_t* pixel) const {
        return linear_ ? LinearColourAt(pixel) : varnel::ColourAt(pixel, format_);
    }
    // A level in the unit of the bitmap's samples, rounded.
    std::uint8_t ByteOf(float level) const;
    // Opaque.
    PixelLevels LevelsOf(const PixelColor& colour) const;

  private:
    PixelColor LinearColourAt(const std::uint8_t* pixel) const;

    PixelFormat format_;
    SampleKind samples_;
    bool linear_;
};

}  // namespace varnel
