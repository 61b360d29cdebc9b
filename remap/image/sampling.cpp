// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/sampling.h"

#include "remap/image/interpolation.h"

namespace varnel {

namespace {

// Reads through the library; x and y are whole.
struct LibraryReader {
    const Bitmap* bitmap;
    PixelColor operator()(double x, double y) const {
        PixelColor colour = black;
        const std::optional<std::int32_t> column = PixelIndex(x);
        const std::optional<std::int32_t> row = PixelIndex(y);
        if (column && row) {
            GetPixelColor(bitmap, *column, *row, colour);
        }
        return colour;
    }
};

}  // namespace

PixelColor SampleNearest(const Bitmap* bitmap, double x, double y) {
    return LibraryReader{bitmap}(Round(x), Round(y));
}

PixelColor SampleLinearX(const Bitmap* bitmap, double x, double y) {
    return BlendLinearX(LibraryReader{bitmap}, x, y);
}

PixelColor SampleBilinear(const Bitmap* bitmap, double x, double y) {
    return BlendBilinear(LibraryReader{bitmap}, x, y);
}

}  // namespace varnel
