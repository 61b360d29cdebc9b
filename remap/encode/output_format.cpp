// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/output_format.h"

#include <algorithm>
#include <array>

#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/jpeg_coder.h"
#include "remap/encode/coders/png_coder.h"
#include "remap/encode/coders/tiff_coder.h"

namespace varnel {

namespace {

// Between two points of a table.
double Between(double x, double x0, double y0, double x1, double y1) {
    return y0 + (x - x0) / (x1 - x0) * (y1 - y0);
}

// By how much colour at full resolution makes a JPEG file larger. Measured with photos of
// foliage: 1.16 to 1.31 up to quality 95, 1.34 to 1.48 at 100.
double ChromaFactor(double quality) {
    return quality <= 95.0 ? 1.2 : Between(quality, 95.0, 1.2, 100.0, 1.45);
}

double JpegBytesPerPixel(const OutputEncoding& encoding) {
    const double quality = encoding.quality;
    const double factor = encoding.chroma444 ? ChromaFactor(quality) : 1.0;
    if (quality <= 85.0) {
        return factor * Between(std::max(quality, 50.0), 50.0, 0.19, 85.0, 0.36);
    }
    return factor * (quality <= 95.0 ? Between(quality, 85.0, 0.36, 95.0, 0.61)
                                     : Between(quality, 95.0, 0.61, 100.0, 1.07));
}

template <int hundredths>
double BytesPerPixel(const OutputEncoding& /*encoding*/) {
    return hundredths / 100.0;
}

constexpr std::array rows{
    OutputFormat{OutputType::Tiff,
                 u"TIFF",
                 u"Tiff",
                 u".TIF",
                 u".TIFF",
                 {.bitsPerSample = 16, .alpha = true, .metadata = true, .profile = true},
                 false,
                 &BytesPerPixel<230>,
                 &EncodeTiff},
    OutputFormat{OutputType::Jpeg,
                 u"JPEG",
                 u"Jpeg",
                 u".JPG",
                 u".JPEG",
                 {.metadata = true, .profile = true},
                 true,
                 &JpegBytesPerPixel,
                 &EncodeJpeg},
    OutputFormat{OutputType::Bmp,
                 u"BMP",
                 u"BMP",
                 u".BMP",
                 u".BMP",
                 {},
                 false,
                 &BytesPerPixel<300>,
                 &EncodeBmp},
    OutputFormat{OutputType::Png,
                 u"PNG",
                 u"PNG",
                 u".PNG",
                 u".PNG",
                 {.bitsPerSample = 16, .alpha = true, .metadata = true, .profile = true},
                 false,
                 &BytesPerPixel<200>,
                 &EncodePng}};
static_assert(std::ranges::equal(rows, allOutputTypes, {}, &OutputFormat::type));

}  // namespace

const OutputFormat& FormatOf(OutputType type) {
    return rows[static_cast<std::size_t>(type)];
}

}  // namespace varnel
