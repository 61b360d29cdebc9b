// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/output_type.h"

#include <algorithm>

#include "remap/encode/output_format.h"

namespace varnel {

namespace {

template <class Holds>
std::optional<OutputType> FirstOf(const Holds& holds) {
    const std::span<const OutputType> all = AllOutputTypes();
    const auto found =
        std::ranges::find_if(all, [&](OutputType type) { return holds(FormatOf(type)); });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

}  // namespace

TiffCompression CompressionFor(const OutputEncoding& encoding, SampleKind samples) {
    if (encoding.compression != TiffCompression::Usual) {
        return encoding.compression;
    }
    return samples == SampleKind::Byte && encoding.level == OutputEncoding::usualLevel
               ? TiffCompression::Lzw
               : TiffCompression::Deflate;
}

QString ToText(OutputType type) {
    return QString::fromUtf16(FormatOf(type).key);
}

OutputType OutputTypeFromText(QStringView text) {
    return FirstOf([&](const OutputFormat& format) { return text == QStringView(format.key); })
        .value_or(OutputType::Tiff);
}

std::optional<OutputType> OutputTypeByName(QStringView text) {
    return FirstOf([&](const OutputFormat& format) {
        return text.compare(QStringView(format.key), Qt::CaseInsensitive) == 0;
    });
}

std::optional<OutputType> OutputTypeByEnding(QStringView fileName) {
    return FirstOf([&](const OutputFormat& format) {
        return fileName.endsWith(QStringView(format.ending), Qt::CaseInsensitive) ||
               fileName.endsWith(QStringView(format.synonym), Qt::CaseInsensitive);
    });
}

QString ExtensionOf(OutputType type) {
    return QString::fromUtf16(FormatOf(type).ending);
}

QString FilterOf(OutputType type) {
    return QStringLiteral("%1 (*%2)")
        .arg(QString::fromUtf16(FormatOf(type).name), ExtensionOf(type));
}

QString WithExtension(const QString& fileName, OutputType type) {
    const QString extension = ExtensionOf(type);
    return fileName.endsWith(extension, Qt::CaseInsensitive) ? fileName : fileName + extension;
}

}  // namespace varnel
