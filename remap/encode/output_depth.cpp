// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/output_depth.h"

#include <algorithm>
#include <array>

namespace varnel {

namespace {

// In the order of the enumerations.
constexpr std::array depthTexts{u"auto", u"8", u"16", u"float"};
constexpr std::array compressionTexts{u"auto", u"lzw", u"deflate", u"zstd", u"none"};

template <class Choice, class Texts>
std::optional<Choice> FromText(const Texts& texts, QStringView text) {
    for (std::size_t n = 0; n < texts.size(); ++n) {
        if (text.compare(QStringView(texts[n]), Qt::CaseInsensitive) == 0) {
            return static_cast<Choice>(n);
        }
    }
    return std::nullopt;
}

template <class Texts>
QStringList ListOf(const Texts& texts) {
    QStringList list;
    for (const char16_t* text : texts) {
        list.append(QString::fromUtf16(text));
    }
    return list;
}

}  // namespace

QString ToText(OutputDepth depth) {
    return QString::fromUtf16(depthTexts[static_cast<std::size_t>(depth)]);
}

std::optional<OutputDepth> OutputDepthFromText(QStringView text) {
    return FromText<OutputDepth>(depthTexts, text);
}

QStringList OutputDepthTexts() {
    return ListOf(depthTexts);
}

QString ToText(TiffCompression compression) {
    return QString::fromUtf16(compressionTexts[static_cast<std::size_t>(compression)]);
}

std::optional<TiffCompression> TiffCompressionFromText(QStringView text) {
    return FromText<TiffCompression>(compressionTexts, text);
}

QStringList TiffCompressionTexts() {
    return ListOf(compressionTexts);
}

QString DepthText(SampleKind samples) {
    return ToText(samples == SampleKind::Byte   ? OutputDepth::Eight
                  : samples == SampleKind::Word ? OutputDepth::Sixteen
                                                : OutputDepth::Float);
}

SampleKind SamplesFor(OutputDepth depth, SampleKind own) {
    switch (depth) {
        case OutputDepth::Eight:
            return SampleKind::Byte;
        case OutputDepth::Sixteen:
            return SampleKind::Word;
        case OutputDepth::Float:
            return SampleKind::Float;
        case OutputDepth::Own:
            break;
    }
    return own;
}

SampleKind SamplesWithin(int bitsPerSample, SampleKind wanted) {
    for (const SampleKind samples : {SampleKind::Float, SampleKind::Word}) {
        if (BitsPerSample(samples) <= std::min(bitsPerSample, BitsPerSample(wanted))) {
            return samples;
        }
    }
    return SampleKind::Byte;
}

}  // namespace varnel
