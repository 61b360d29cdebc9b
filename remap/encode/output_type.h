// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The file types that Varnel writes: their texts and endings. What a type can do stands in its row
// of remap/encode/output_format.h. Throws nothing.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>

#include "remap/encode/output_depth.h"

namespace varnel {

// The place of a type's row in the table. Those that code and tests name; the table may have more.
enum class OutputType : std::uint8_t { Tiff, Jpeg, Bmp, Png };

// Those of the table, in the order of the lists.
std::span<const OutputType> AllOutputTypes();

// A type with the settings that types take; each takes what its row says and leaves the rest.
struct OutputEncoding {
    OutputType type = OutputType::Tiff;
    int quality = usualQuality;  // 1 to 100
    bool chroma444 = false;      // colour at full resolution
    OutputDepth depth = OutputDepth::Own;
    TiffCompression compression = TiffCompression::Usual;  // of TIFF files
    int level = usualLevel;  // of what compresses without loss: 1, fast, to 9, small

    static constexpr int usualQuality = 75;
    static constexpr int usualLevel = 0;  // what is fast and hardly larger
    static constexpr int mostLevel = 9;

    OutputEncoding() = default;
    // On purpose not explicit: most types need no more than that.
    OutputEncoding(OutputType its, int itsQuality = usualQuality, bool fullColour = false)
        : type(its), quality(itsQuality), chroma444(fullColour) {}
    bool operator==(const OutputEncoding&) const = default;
};

// What the compression of TIFF files with such samples is: not Usual.
TiffCompression CompressionFor(const OutputEncoding& encoding, SampleKind samples);

// "TIFF", "JPEG", "BMP" or "PNG": the setting "FileType".
QString ToText(OutputType type);
// Any other text, the first-run setting "JPG" included, means TIFF.
OutputType OutputTypeFromText(QStringView text);
// The texts above, without regard to case; nothing for any other.
std::optional<OutputType> OutputTypeByName(QStringView text);
// By the ending of a file name (.tif, .tiff, .jpg, .jpeg, .bmp, .png), without regard to case.
std::optional<OutputType> OutputTypeByEnding(QStringView fileName);
// ".TIF", ".JPG", ".BMP" or ".PNG".
QString ExtensionOf(OutputType type);
// The save dialog's filter text, "Tiff (*.TIF)" and so on.
QString FilterOf(OutputType type);

// The name with the type's extension appended, unless its last characters are that extension in any
// case.
QString WithExtension(const QString& fileName, OutputType type);

}  // namespace varnel
