// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/output_format.h"

#include <algorithm>
#include <array>

namespace varnel {

// The coders, each in its file under coders/.
EncodeFunction EncodeTiff, EncodeJpeg, EncodeBmp, EncodePng, EncodeExr, EncodeHdr;
#ifdef VARNEL_JXL
EncodeFunction EncodeJxl;
#endif

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

double JpegBytesPerPixel(const OutputEncoding& encoding, SampleKind /*samples*/) {
    const double quality = encoding.quality;
    const double factor = encoding.chroma444 ? ChromaFactor(quality) : 1.0;
    if (quality <= 85.0) {
        return factor * Between(std::max(quality, 50.0), 50.0, 0.19, 85.0, 0.36);
    }
    return factor * (quality <= 95.0 ? Between(quality, 85.0, 0.36, 95.0, 0.61)
                                     : Between(quality, 95.0, 0.61, 100.0, 1.07));
}

// Three samples as they are.
double PlainBytesPerPixel(SampleKind samples) {
    return static_cast<double>(BytesPerPixel(PixelFormatOf(samples, false)));
}

// Compressed, deep samples need about what they are; but LZW makes those of 16 bits larger.
double DeepBytesPerPixel(TiffCompression compression, SampleKind samples) {
    return PlainBytesPerPixel(samples) * (compression == TiffCompression::Lzw ? 1.3 : 1.0);
}

double TiffBytesPerPixel(const OutputEncoding& encoding, SampleKind samples) {
    const TiffCompression compression = CompressionFor(encoding, samples);
    return compression == TiffCompression::None ? PlainBytesPerPixel(samples)
           : samples == SampleKind::Byte        ? 2.3
                                                : DeepBytesPerPixel(compression, samples);
}

double PngBytesPerPixel(const OutputEncoding& /*encoding*/, SampleKind samples) {
    return samples == SampleKind::Byte ? 2.0 : PlainBytesPerPixel(samples);
}

double PlainBytesPerPixelOf(const OutputEncoding& /*encoding*/, SampleKind samples) {
    return PlainBytesPerPixel(samples);
}

double HdrBytesPerPixel(const OutputEncoding& /*encoding*/, SampleKind /*samples*/) {
    return 3.7;
}

#ifdef VARNEL_JXL
// Without loss at 100.
double JxlBytesPerPixel(const OutputEncoding& encoding, SampleKind samples) {
    const double quality = encoding.quality;
    return quality >= 100.0  ? (samples == SampleKind::Byte ? 1.7 : PlainBytesPerPixel(samples))
           : quality <= 90.0 ? Between(std::max(quality, 50.0), 50.0, 0.17, 90.0, 0.41)
                             : Between(quality, 90.0, 0.41, 99.0, 0.9);
}
#endif

constexpr std::array rows{
    OutputFormat{u"TIFF",
                 u"Tiff",
                 u".TIF",
                 u".TIFF",
                 {.bitsPerSample = 32, .alpha = true, .metadata = true, .profile = true},
                 false,
                 false,
                 true,
                 &TiffBytesPerPixel,
                 &EncodeTiff},
    OutputFormat{u"JPEG",
                 u"Jpeg",
                 u".JPG",
                 u".JPEG",
                 {.metadata = true, .profile = true},
                 true,
                 true,
                 true,
                 &JpegBytesPerPixel,
                 &EncodeJpeg},
    OutputFormat{u"BMP",
                 u"BMP",
                 u".BMP",
                 u".BMP",
                 {},
                 false,
                 false,
                 false,
                 &PlainBytesPerPixelOf,
                 &EncodeBmp},
    OutputFormat{u"PNG",
                 u"PNG",
                 u".PNG",
                 u".PNG",
                 {.bitsPerSample = 16, .alpha = true, .metadata = true, .profile = true},
                 false,
                 false,
                 true,
                 &PngBytesPerPixel,
                 &EncodePng},
    OutputFormat{u"EXR",
                 u"OpenEXR",
                 u".EXR",
                 u".EXR",
                 {.bitsPerSample = 32, .leastBits = 32, .alpha = true},
                 false,
                 false,
                 false,
                 &PlainBytesPerPixelOf,
                 &EncodeExr},
    OutputFormat{u"HDR",
                 u"Radiance",
                 u".HDR",
                 u".HDR",
                 {.bitsPerSample = 32, .leastBits = 32},
                 false,
                 false,
                 false,
                 &HdrBytesPerPixel,
                 &EncodeHdr},
#ifdef VARNEL_JXL
    OutputFormat{u"JXL",
                 u"JPEG XL",
                 u".JXL",
                 u".JXL",
                 {.bitsPerSample = 32, .alpha = true, .metadata = true, .profile = true},
                 true,
                 false,
                 false,
                 &JxlBytesPerPixel,
                 &EncodeJxl},
#endif
};

// Of places that are the table's, one after the other.
constexpr auto types = [] {
    std::array<OutputType, rows.size()> all{};
    for (std::size_t place = 0; place < all.size(); ++place) {
        all[place] = static_cast<OutputType>(place);
    }
    return all;
}();

}  // namespace

std::span<const OutputType> AllOutputTypes() {
    return types;
}

const OutputFormat& FormatOf(OutputType type) {
    return rows[static_cast<std::size_t>(type)];
}

SampleKind SamplesIn(OutputType type, SampleKind wanted) {
    const OutputAbilities& holds = FormatOf(type).holds;
    return holds.leastBits > 16 ? SampleKind::Float : SamplesWithin(holds.bitsPerSample, wanted);
}

}  // namespace varnel
