// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// plain_library INPUT OUTPUT
// The obvious program on the image library: for each pixel of the view four pixels are read and one
// is written through its calls, in double arithmetic. Saved as a BMP it is also the truth that all
// pictures are compared with. Rows count from the bottom.

#include <FreeImage.h>

#include <array>
#include <cstdio>

#include "bench/compare/view.h"

namespace {

using Colour = std::array<double, 3>;

// Black outside.
Colour At(FIBITMAP* bitmap, int x, int y) {
    RGBQUAD colour{};
    FreeImage_GetPixelColor(bitmap, static_cast<unsigned>(x), static_cast<unsigned>(y), &colour);
    return {static_cast<double>(colour.rgbBlue), static_cast<double>(colour.rgbGreen),
            static_cast<double>(colour.rgbRed)};
}

RGBQUAD Bilinear(FIBITMAP* bitmap, double x, double y) {
    const int left = static_cast<int>(std::floor(x));
    const int below = static_cast<int>(std::floor(y));
    const double across = x - left;
    const double up = y - below;
    const std::array corners{At(bitmap, left, below), At(bitmap, left + 1, below),
                             At(bitmap, left, below + 1), At(bitmap, left + 1, below + 1)};
    const std::array weights{(1 - across) * (1 - up), across * (1 - up), (1 - across) * up,
                             across * up};
    Colour sum{0.5, 0.5, 0.5};
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        for (std::size_t c = 0; c < sum.size(); ++c) {
            sum[c] += corners[corner][c] * weights[corner];
        }
    }
    return {static_cast<BYTE>(sum[0]), static_cast<BYTE>(sum[1]), static_cast<BYTE>(sum[2]), 0};
}

void Remap(FIBITMAP* source, FIBITMAP* view) {
    const int width = static_cast<int>(FreeImage_GetWidth(source));
    const int height = static_cast<int>(FreeImage_GetHeight(source));
    const int cx = width / 2;
    const int cy = height / 2;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double shrink = varnel::bench::Shrink(x - cx, y - cy, width);
            RGBQUAD colour = Bilinear(source, cx + (x - cx) * shrink, cy + (y - cy) * shrink);
            FreeImage_SetPixelColor(view, static_cast<unsigned>(x), static_cast<unsigned>(y),
                                    &colour);
        }
    }
}

int FlagsFor(FREE_IMAGE_FORMAT format) {
    return format == FIF_JPEG ? 95 : format == FIF_TIFF ? TIFF_LZW : 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("plain_library INPUT OUTPUT\n", stderr);
        return 2;
    }
    FIBITMAP* const source = FreeImage_Load(FIF_JPEG, argv[1], JPEG_ACCURATE);
    if (source == nullptr || FreeImage_GetBPP(source) != 24) {
        std::fprintf(stderr, "%s: not read\n", argv[1]);
        return 1;
    }
    FIBITMAP* const view = FreeImage_Allocate(static_cast<int>(FreeImage_GetWidth(source)),
                                              static_cast<int>(FreeImage_GetHeight(source)), 24);
    Remap(source, view);
    const FREE_IMAGE_FORMAT format = FreeImage_GetFIFFromFilename(argv[2]);
    return FreeImage_Save(format, view, argv[2], FlagsFor(format)) ? 0 : 1;
}
