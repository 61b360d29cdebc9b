// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/light_coders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/image/freeimage_bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// The library has red first in pictures of floating point.
LibraryBitmap InLibrary(const Bitmap& bitmap) {
    const PixelSize size = bitmap.Size();
    const std::size_t samples = HasAlpha(bitmap.Format()) ? 4 : 3;
    LibraryBitmap copy(
        FreeImage_AllocateT(samples == 4 ? FIT_RGBAF : FIT_RGBF, size.width, size.height));
    if (!copy) {
        throw std::bad_alloc();
    }
    for (int y = 0; y < size.height; ++y) {
        const std::uint8_t* from = bitmap.ScanLine(y).data();
        std::uint8_t* to = FreeImage_GetScanLine(copy.get(), y);
        for (std::int32_t x = 0; x < size.width; ++x) {
            for (std::size_t n = 0; n < samples; ++n) {
                PutSample(to, n, SampleAt<float>(from, n < 3 ? 2 - n : n));
            }
            from += PixelStep(bitmap.Format());
            to += PixelStep(bitmap.Format());
        }
    }
    return copy;
}

// The library cuts mantissas off, by which everything would be darker by half a step.
void RoundToSharedExponent(std::array<float, 3>& pixel) {
    constexpr float most = 0x1.FEp126F;  // the largest whose exponent fits
    constexpr int bits = 8;
    for (float& sample : pixel) {
        sample = sample > 0.0F ? std::min(sample, most) : 0.0F;  // no number is 0
    }
    int exponent = 0;
    std::frexp(std::ranges::max(pixel), &exponent);
    // Rounded up, the brightest may need the next exponent.
    if (std::ldexp(std::nearbyint(std::ldexp(std::ranges::max(pixel), bits - exponent)), -bits) >=
        1.0F) {
        ++exponent;
    }
    for (float& sample : pixel) {
        sample = std::ldexp(std::nearbyint(std::ldexp(sample, bits - exponent)), exponent - bits);
    }
}

}  // namespace

EncodedBitmap EncodeExr(const Bitmap* bitmap, const OutputEncoding& /*encoding*/,
                        const EncodeOptions& options) {
    return LibraryFile(FIF_EXR, InLibrary(*bitmap).get(), EXR_FLOAT | EXR_ZIP, options.largest);
}

EncodedBitmap EncodeHdr(const Bitmap* bitmap, const OutputEncoding& /*encoding*/,
                        const EncodeOptions& options) {
    const LibraryBitmap copy = InLibrary(*bitmap);
    for (int y = 0; y < bitmap->Size().height; ++y) {
        std::uint8_t* pixel = FreeImage_GetScanLine(copy.get(), y);
        for (std::int32_t x = 0; x < bitmap->Size().width; ++x, pixel += 3 * sizeof(float)) {
            std::array<float, 3> light{SampleAt<float>(pixel, 0), SampleAt<float>(pixel, 1),
                                       SampleAt<float>(pixel, 2)};
            RoundToSharedExponent(light);
            for (std::size_t n = 0; n < light.size(); ++n) {
                PutSample(pixel, n, light[n]);
            }
        }
    }
    return LibraryFile(FIF_HDR, copy.get(), 0, options.largest);
}

}  // namespace varnel
