// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/save_wish.h"

#include <QCoreApplication>
#include <QLocale>

#include "remap/encode/output_format.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SaveWish)
};

// The table of types holds what photos full of fine detail need. Of nine photos of rooms, roofs,
// trees and skies, converted to Rectilinear 100 degrees wide, the middle one needed this part of
// it: 0.36 in TIFF and 0.37 in PNG; in JPEG 0.21 at quality 75, 0.23 at 90, 0.26 at 95, 0.35 at
// 100.
double UsualPart(const OutputEncoding& encoding) {
    switch (encoding.type) {
        case OutputType::Bmp:
            return 1.0;
        case OutputType::Jpeg:
            return encoding.quality <= 90 ? 0.22 : 0.22 + 0.013 * (encoding.quality - 90);
        default:
            return 0.36;
    }
}

// The last bits of deep samples are noise: all photos need nearly as much.
constexpr double deepPart = 0.9;

}  // namespace

OutputEncoding EncodingOf(const GeneralSettings& settings) {
    OutputEncoding encoding(OutputTypeFromText(settings.FileType), settings.JPEGcompression,
                            settings.JPEGchroma444);
    encoding.depth = settings.KeepDepth ? OutputDepth::Own : OutputDepth::Eight;
    encoding.compression =
        TiffCompressionFromText(settings.TiffCompression).value_or(TiffCompression::Usual);
    return encoding;
}

SaveWish WishOf(const GeneralSettings& settings) {
    return {EncodingOf(settings), settings.WriteMetadata, settings.NamePattern,
            SamplingOf(settings)};
}

ImageRecord AsSaved(ImageRecord image, SamplingKind wished) {
    if (wished == SamplingKind::Fine) {
        image.Sampling = wished;
    }
    return image;
}

void TakeWish(const SaveWish& wish, GeneralSettings& settings) {
    settings.JPEGcompression = static_cast<std::int16_t>(wish.encoding.quality);
    settings.JPEGchroma444 = wish.encoding.chroma444;
    settings.WriteMetadata = wish.writeMetadata;
    settings.NamePattern = wish.pattern;
    settings.FineSampling = wish.sampling == SamplingKind::Fine;
}

SampleKind SamplesOfFile(const OutputEncoding& encoding, SampleKind photo) {
    return SamplesIn(encoding.type, SamplesFor(encoding.depth, photo));
}

qint64 UsualBytes(double pixels, const OutputEncoding& encoding, SampleKind photo) {
    const SampleKind samples = SamplesOfFile(encoding, photo);
    const double part = samples == SampleKind::Byte ? UsualPart(encoding) : deepPart;
    return qRound64(pixels * FormatOf(encoding.type).bytesPerPixel(encoding, samples) * part);
}

QString DepthText(const OutputEncoding& encoding, SampleKind photo) {
    switch (SamplesOfFile(encoding, photo)) {
        case SampleKind::Word:
            return Texts::tr("16 bits");
        case SampleKind::Float:
            return Texts::tr("floating point");
        case SampleKind::Byte:
            break;
    }
    return Texts::tr("8 bits");
}

QString UsualSizeText(qint64 bytes) {
    const int decimals = bytes >= 1'000'000 && bytes < 10'000'000 ? 1 : 0;
    return Texts::tr("about %1")
        .arg(QLocale().formattedDataSize(bytes, decimals, QLocale::DataSizeSIFormat));
}

}  // namespace varnel
