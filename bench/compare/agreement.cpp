// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// agreement [--middle SHARE] TRUTH PICTURE...
// Prints the lowest PSNR, in dB, of the middle of the pictures: SHARE (0.5) of their width and
// height.

#include <FreeImage.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

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

// A run of columns or rows.
struct Middle {
    unsigned first = 0;
    unsigned count = 0;
    static Middle Of(unsigned all, double share) {
        const auto count = static_cast<unsigned>(all * share);
        return {(all - count) / 2, count};
    }
};

double Psnr(FIBITMAP* truth, FIBITMAP* picture, double share) {
    const unsigned width = FreeImage_GetWidth(truth);
    const unsigned height = FreeImage_GetHeight(truth);
    if (FreeImage_GetWidth(picture) != width || FreeImage_GetHeight(picture) != height) {
        return 0.0;
    }
    const Middle columns = Middle::Of(width, share);
    const Middle rows = Middle::Of(height, share);
    double squares = 0.0;
    for (unsigned y = rows.first; y < rows.first + rows.count; ++y) {
        const BYTE* const one = FreeImage_GetScanLine(truth, static_cast<int>(y));
        const BYTE* const other = FreeImage_GetScanLine(picture, static_cast<int>(y));
        for (unsigned n = columns.first * 3; n < (columns.first + columns.count) * 3; ++n) {
            const int difference = one[n] - other[n];
            squares += difference * difference;
        }
    }
    const double mean = squares / (3.0 * columns.count * rows.count);
    return mean == 0.0 ? 99.0 : 10.0 * std::log10(255.0 * 255.0 / mean);
}

}  // namespace

int main(int argc, char** argv) {
    double share = 0.5;
    int first = 1;
    if (argc > 2 && std::strcmp(argv[1], "--middle") == 0) {
        share = std::atof(argv[2]);
        first = 3;
    }
    if (argc < first + 2 || !(share > 0.0 && share <= 1.0)) {
        return 2;
    }
    FIBITMAP* const truth = Load(argv[first]);
    double lowest = 99.0;
    for (int n = first + 1; n < argc; ++n) {
        FIBITMAP* const picture = Load(argv[n]);
        lowest = std::min(lowest, Psnr(truth, picture, share));
        FreeImage_Unload(picture);
    }
    std::printf("%.1f\n", lowest);
    return 0;
}
