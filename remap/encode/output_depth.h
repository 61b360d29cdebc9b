// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How deep written files are, how TIFF files are compressed, and the texts of both. Throws nothing
// but std::bad_alloc.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "remap/image/pixel_format.h"

namespace varnel {

// Own: as deep as the photo. Each as far as the file type goes.
enum class OutputDepth : std::uint8_t { Own, Eight, Sixteen, Float };

// Usual: LZW for 8 bits; deflate where a level is asked for, which LZW does not have, and for
// deeper samples, which LZW makes larger than they are.
enum class TiffCompression : std::uint8_t { Usual, Lzw, Deflate, Zstd, None };

// "auto", "8", "16" or "float".
QString ToText(OutputDepth depth);
// Without regard to case; nothing for any other text.
std::optional<OutputDepth> OutputDepthFromText(QStringView text);
QStringList OutputDepthTexts();

// "auto", "lzw", "deflate", "zstd" or "none".
QString ToText(TiffCompression compression);
// Without regard to case; nothing for any other text.
std::optional<TiffCompression> TiffCompressionFromText(QStringView text);
QStringList TiffCompressionTexts();

// "8", "16" or "float".
QString DepthText(SampleKind samples);

// The samples that a picture of others is wanted with; its own where that is the choice.
SampleKind SamplesFor(OutputDepth depth, SampleKind own);
// The deepest of those that have at most so many bits.
SampleKind SamplesWithin(int bitsPerSample, SampleKind wanted);

}  // namespace varnel
