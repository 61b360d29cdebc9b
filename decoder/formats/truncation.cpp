// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/truncation.h"

#include <algorithm>
#include <array>

#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/readers/bmp_header.h"
#include "decoder/formats/tiff_structure.h"

namespace varnel {

namespace {

// Pieces of the messages of libjpeg, libtiff, its codecs and the image library.
constexpr std::array damageMessages{
    // libjpeg
    u"Premature end of", u"Corrupt JPEG data", u"Inconsistent progression", u"Invalid SOS",
    u"Corrupt data", u"Unsupported marker",
    // libtiff: the file's end, and what its codecs say
    u"Read error", u"Seek error", u"Not enough data", u"Not enough decoded bytes",
    u"Decoding error", u"Corrupted LZW table", u"Using code not yet in table", u"Bogus encoding",
    u"Error while reading", u"IO error during reading", u"Invalid strip byte count",
    u"Invalid tile byte count", u"Bad code word", u"Premature EOF", u"ZLib error", u"Write error",
    u"Cannot handle zero strip size",
    // the image library
    u"Incompatible type for", u"unexpected end", u"Decoding failed", u"truncated"};

// Cut files that come as a picture without a message, or with one that means nothing.
bool IsCut(InputFormat format, const PictureFile& file, const QStringList& messages) {
    switch (format) {
        case InputFormat::Bmp: {
            const std::optional<BmpHeader> header = ReadBmpHeader(file);
            return header && BmpIsCut(file, *header);
        }
        case InputFormat::Jpeg:
            // The library says only the first thing that it meets, which may be a harmless one.
            return !messages.isEmpty() && JpegIsCut(file);
        case InputFormat::Tiff:
        case InputFormat::Raw: {
            const std::optional<TiffStructure> facts = TiffFactsOf(file);
            // Raw files keep their pixels behind the metadata and often only the maker's note tells
            // where.
            return facts && (facts->isCut || (format == InputFormat::Raw && facts->isMetadataCut));
        }
        default:
            return false;
    }
}

}  // namespace

bool MeansDamage(const QString& message) {
    return std::ranges::any_of(damageMessages, [&](const char16_t* sign) {
        return message.contains(QStringView(sign), Qt::CaseInsensitive);
    });
}

Reason DamageOf(InputFormat format, const PictureFile& file, const QStringList& messages) {
    const auto message = std::ranges::find_if(messages, MeansDamage);
    if (message != messages.end()) {
        return {ReasonCode::Damaged, *message};
    }
    return IsCut(format, file, messages) ? ReasonCode::FileCutShort : ReasonCode::None;
}

}  // namespace varnel
