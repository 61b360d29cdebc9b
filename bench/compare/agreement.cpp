// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// agreement TRUTH PICTURE...
// Prints the lowest PSNR, in dB, of the middle (half as wide and as high) of the pictures.

#include <FreeImage.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

// 24 bits a pixel; ends the program when it is not a picture.
FIBITMAP* Load(const char* name) {
    FIBITMAP* const loaded =
        FreeImage_Load(FreeImage_GetFileType(name), name,
                       FreeImage_GetFileType(name) == FIF_JPEG ? JPEG_ACCURATE : 0);
    FIBITMAP* const colours = loaded == nullptr ? nullptr : FreeImage_ConvertTo24Bits(loaded);
    if (colours == nullptr) {
        std::fprintf(stderr, "%s: not read\n", name);
        std::exit(1);
    }
    FreeImage_Unload(loaded);
    return colours;
}

double Psnr(FIBITMAP* truth, FIBITMAP* picture) {
    const unsigned width = FreeImage_GetWidth(truth);
    const unsigned height = FreeImage_GetHeight(truth);
    if (FreeImage_GetWidth(picture) != width || FreeImage_GetHeight(picture) != height) {
        return 0.0;
    }
    double squares = 0.0;
    for (unsigned y = height / 4; y < height / 4 + height / 2; ++y) {
        const BYTE* const one = FreeImage_GetScanLine(truth, static_cast<int>(y));
        const BYTE* const other = FreeImage_GetScanLine(picture, static_cast<int>(y));
        for (unsigned n = width / 4 * 3; n < (width / 4 + width / 2) * 3; ++n) {
            const int difference = one[n] - other[n];
            squares += difference * difference;
        }
    }
    const double mean = squares / (3.0 * (width / 2) * (height / 2));
    return mean == 0.0 ? 99.0 : 10.0 * std::log10(255.0 * 255.0 / mean);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return 2;
    }
    FIBITMAP* const truth = Load(argv[1]);
    double lowest = 99.0;
    for (int n = 2; n < argc; ++n) {
        FIBITMAP* const picture = Load(argv[n]);
        lowest = std::min(lowest, Psnr(truth, picture));
        FreeImage_Unload(picture);
    }
    std::printf("%.1f\n", lowest);
    return 0;
}
