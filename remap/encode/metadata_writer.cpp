// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/metadata_writer.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "remap/encode/exif_writer.h"
#include "remap/encode/png_frame.h"
#include "remap/encode/xmp_settings.h"
#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

constexpr qsizetype longestSegment = 65533;  // bytes of data
constexpr qsizetype longestXmpInJpeg = 65502;

QByteArray Segment(char marker, QByteArrayView head, QByteArrayView data) {
    QByteArray segment("\xFF\0\0\0", 4);
    segment[1] = marker;
    qToBigEndian(static_cast<quint16>(2 + head.size() + data.size()), segment.data() + 2);
    return segment.append(head).append(data);
}

QByteArray Chunk(const char* type, QByteArrayView data) {
    QByteArray chunk(pngChunkStart, '\0');
    chunk.append(data).append(pngChunkEnd, '\0');
    SealPngChunk(chunk.data(), data.size(), type);
    return chunk;
}

// What goes into one file; its steps add to the result.
class Assembly {
  public:
    explicit Assembly(const Bitmap* bitmap)
        : bitmap_(bitmap), photo_(bitmap->metadata.photo), settings_(bitmap->metadata.settings) {
        constexpr qsizetype tiffHeader = 8;
        if (photo_.exif.bytes.size() < tiffHeader) {
            photo_.exif = {};
        }
        result_.isOfPhoto = !photo_.IsEmpty();
        result_.notes = photo_.notes;
    }

    bool IsNeeded() const { return result_.isOfPhoto || !settings_.isEmpty(); }
    WrittenMetadata Jpeg();
    WrittenMetadata Png();
    WrittenMetadata Tiff();
    WrittenMetadata Bmp();

  private:
    void AddExifSegment();
    void AddXmpSegment();
    void AddIptcSegment();
    QByteArray Packet();
    bool IsWorthKeeping() const;

    const Bitmap* const bitmap_;
    PhotoMetadata photo_;
    const PictureSettings settings_;
    WrittenMetadata result_;
};

// With the settings, if they can be had; empty when there is nothing to be written.
QByteArray Assembly::Packet() {
    if (auto packet = PacketWithSettings(photo_, settings_)) {
        return std::move(*packet);
    }
    result_.notes += ReasonCode::NoPlaceForSettings;
    return photo_.xmp;
}

void Assembly::AddExifSegment() {
    const bool isShortened = !photo_.exifForJpeg.bytes.isEmpty();
    const ExifBlock& exif = isShortened ? photo_.exifForJpeg : photo_.exif;
    if (exif.bytes.isEmpty()) {
        return;
    }
    if (exif.bytes.size() > longestExifInJpeg) {
        result_.notes += ReasonCode::ExifTooLong;
        return;
    }
    if (isShortened) {
        result_.notes += ReasonCode::PartOfExifTooLong;
    }
    result_.parts += Segment('\xE1', QByteArrayView("Exif\0\0", 6), WrittenExif(exif, bitmap_));
}

void Assembly::AddXmpSegment() {
    constexpr QByteArrayView head("http://ns.adobe.com/xap/1.0/\0", 29);
    QByteArray packet = Packet();
    if (packet.size() > longestXmpInJpeg && !photo_.xmp.isEmpty()) {
        result_.notes += ReasonCode::XmpTooLong;
        packet = settings_.isEmpty() ? QByteArray() : SettingsPacket(settings_);
    }
    if (packet.size() > longestXmpInJpeg) {
        result_.notes += ReasonCode::SettingsTooLong;
    } else if (!packet.isEmpty()) {
        result_.parts += Segment('\xE1', head, packet);
    }
}

void Assembly::AddIptcSegment() {
    constexpr QByteArrayView head("Photoshop 3.0\0", 14);
    if (photo_.iptc.isEmpty()) {
        return;
    }
    const QByteArray resource = IptcResource(photo_.iptc);
    if (head.size() + resource.size() > longestSegment) {
        result_.notes += ReasonCode::IptcTooLong;
    } else {
        result_.parts += Segment('\xED', head, resource);
    }
}

WrittenMetadata Assembly::Jpeg() {
    AddExifSegment();
    AddXmpSegment();
    AddIptcSegment();
    return std::move(result_);
}

// IPTC in a chunk of compressed text, as there is none for it: its type, its length and its bytes
// in hexadecimal digits.
QByteArray ProfileChunk(const QByteArray& resource) {
    constexpr qsizetype digitsInLine = 72;
    QByteArray text = "\niptc\n" + QByteArray::number(resource.size()).rightJustified(8) + '\n';
    const QByteArray digits = resource.toHex();
    for (qsizetype at = 0; at < digits.size(); at += digitsInLine) {
        text += digits.mid(at, digitsInLine) + '\n';
    }
    constexpr qsizetype qtLength = 4;  // stands before the stream of zlib
    return Chunk("zTXt",
                 QByteArray("Raw profile type iptc\0\0", 23) + qCompress(text).sliced(qtLength));
}

WrittenMetadata Assembly::Png() {
    // Keyword, not compressed, no language and no translation.
    constexpr QByteArrayView keyword("XML:com.adobe.xmp\0\0\0\0\0", 22);
    if (!photo_.exif.bytes.isEmpty()) {
        result_.parts += Chunk("eXIf", WrittenExif(photo_.exif, bitmap_));
    }
    if (const QByteArray packet = Packet(); !packet.isEmpty()) {
        result_.parts += Chunk("iTXt", keyword.toByteArray() + packet);
    }
    if (!photo_.iptc.isEmpty()) {
        result_.parts += ProfileChunk(IptcResource(photo_.iptc));
    }
    return std::move(result_);
}

WrittenMetadata Assembly::Tiff() {
    result_.exif = WrittenExifWithoutThumbnail(photo_.exif, SizeOf(bitmap_));
    result_.entries = photo_.tiffEntries;
    result_.xmp = Packet();
    result_.iptc = photo_.iptc;
    return std::move(result_);
}

// More than Varnel itself adds to a photo that has nothing: size, orientation, resolution and the
// name of the program.
bool Assembly::IsWorthKeeping() const {
    static constexpr std::array<std::uint16_t, 7> always{274, 282, 283, 296, 305, 531, 34665};
    const auto isMore = [](const IfdEntry& entry) {
        return std::ranges::find(always, entry.tag) == always.end();
    };
    constexpr qsizetype namespacesAlways = 3;  // of the packet, of RDF and of the program's name
    return std::ranges::any_of(IfdReader(photo_.exif.bytes).Entries(photo_.tiffEntries), isMore) ||
           !photo_.iptc.isEmpty() || photo_.xmp.count("xmlns:") > namespacesAlways;
}

// By what is lost: metadata 1, settings 2, colour profile 4.
constexpr std::array lostInBmp{ReasonCode::None,
                               ReasonCode::BmpHoldsNoMetadata,
                               ReasonCode::BmpHoldsNoSettings,
                               ReasonCode::BmpHoldsNoMetadataOrSettings,
                               ReasonCode::BmpHoldsNoProfile,
                               ReasonCode::BmpHoldsNoMetadataOrProfile,
                               ReasonCode::BmpHoldsNoSettingsOrProfile,
                               ReasonCode::BmpHoldsPixelsOnly};

WrittenMetadata Assembly::Bmp() {
    const std::size_t lost = (IsWorthKeeping() ? 1U : 0U) + (settings_.isEmpty() ? 0U : 2U) +
                             (bitmap_->metadata.colourProfile.isEmpty() ? 0U : 4U);
    WrittenMetadata none;
    if (lost != 0) {
        none.notes += lostInBmp[lost];
    }
    return none;
}

}  // namespace

WrittenMetadata MetadataFor(FREE_IMAGE_FORMAT format, const Bitmap* bitmap) {
    Assembly assembly(bitmap);
    if (!assembly.IsNeeded() && format != FIF_BMP) {
        return {};
    }
    switch (format) {
        case FIF_JPEG:
            return assembly.Jpeg();
        case FIF_PNG:
            return assembly.Png();
        case FIF_TIFF:
            return assembly.Tiff();
        case FIF_BMP:
            return assembly.Bmp();
        default:
            return {};
    }
}

bool InsertParts(FREE_IMAGE_FORMAT format, const WrittenMetadata& metadata, QByteArray& file) {
    constexpr qsizetype startOfImage = 2;
    constexpr qsizetype pngHeader = 8 + pngChunkStart + 13 + pngChunkEnd;
    if (metadata.parts.isEmpty()) {
        return true;
    }
    qsizetype place = pngHeader;
    if (format == FIF_JPEG) {
        place = startOfImage;
        const QByteArrayView jfif = QByteArrayView(file).sliced(std::min(place, file.size()));
        if (jfif.startsWith("\xFF\xE0") && jfif.size() >= 4) {
            place += 2 + qFromBigEndian<quint16>(jfif.data() + 2);
        }
    }
    if (place > file.size()) {
        return false;
    }
    file.insert(place, metadata.parts);
    return true;
}

QByteArray IptcResource(const QByteArray& iptc) {
    QByteArray resource("8BIM\x04\x04\0\0\0\0\0\0", 12);
    qToBigEndian(static_cast<quint32>(iptc.size()), resource.data() + 8);
    resource += iptc;
    return resource.append(iptc.size() % 2, '\0');
}

}  // namespace varnel
