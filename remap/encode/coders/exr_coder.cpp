// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/exr_coder.h"

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

}  // namespace

EncodedBitmap EncodeExr(const Bitmap* bitmap, const OutputEncoding& /*encoding*/,
                        const EncodeOptions& options) {
    return LibraryFile(FIF_EXR, InLibrary(*bitmap).get(), EXR_FLOAT | EXR_ZIP, options.largest);
}

}  // namespace varnel
