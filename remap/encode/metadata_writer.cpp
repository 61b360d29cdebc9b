// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/metadata_writer.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "remap/encode/exif_writer.h"
#include "remap/encode/output_format.h"
#include "remap/encode/xmp_settings.h"
#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

// Bytes: a segment holds 65533, the name of its contents included.
constexpr qsizetype longestXmpInJpeg = 65502;
constexpr qsizetype longestIptcInJpeg = 65533 - 14;  // wrapped

// What goes into one file; its steps add to the result.
class Assembly {
  public:
    explicit Assembly(const Bitmap& bitmap, const Bitmap* thumbnail = nullptr)
        : bitmap_(bitmap),
          thumbnail_(thumbnail),
          photo_(bitmap.metadata.photo),
          own_(bitmap.metadata) {
        constexpr qsizetype tiffHeader = 8;
        if (photo_.exif.bytes.size() < tiffHeader) {
            photo_.exif = {};
        }
        result_.notes = photo_.notes;
    }

    // Whether there is anything to be written.
    bool IsNeeded() const { return !photo_.IsEmpty() || HasOwnXmp(own_); }
    WrittenMetadata Jpeg();
    WrittenMetadata Png();
    WrittenMetadata Jxl();
    WrittenMetadata Tiff();
    Reason LostIn(OutputType type) const;

  private:
    void AddShortExif();
    void AddShortXmp();
    void AddShortIptc();
    QByteArray Packet();
    bool IsWorthKeeping() const;

    const Bitmap& bitmap_;
    const Bitmap* thumbnail_;
    PhotoMetadata photo_;
    const BitmapMetadata& own_;
    WrittenMetadata result_;
};

// With the settings, if they can be had; empty when there is nothing to be written.
QByteArray Assembly::Packet() {
    if (auto packet = PacketWithOwn(own_)) {
        return std::move(*packet);
    }
    result_.notes += ReasonCode::NoPlaceForSettings;
    return photo_.xmp;
}

void Assembly::AddShortExif() {
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
    result_.exif = WrittenExif(exif, &bitmap_, thumbnail_);
}

void Assembly::AddShortXmp() {
    QByteArray packet = Packet();
    if (packet.size() > longestXmpInJpeg && !photo_.xmp.isEmpty()) {
        result_.notes += ReasonCode::XmpTooLong;
        packet = HasOwnXmp(own_) ? OwnPacket(own_) : QByteArray();
    }
    if (packet.size() > longestXmpInJpeg) {
        result_.notes += ReasonCode::SettingsTooLong;
    } else {
        result_.xmp = packet;
    }
}

void Assembly::AddShortIptc() {
    if (IptcResource(photo_.iptc).size() > longestIptcInJpeg) {
        result_.notes += ReasonCode::IptcTooLong;
    } else {
        result_.iptc = photo_.iptc;
    }
}

WrittenMetadata Assembly::Jpeg() {
    AddShortExif();
    AddShortXmp();
    AddShortIptc();
    return std::move(result_);
}

WrittenMetadata Assembly::Png() {
    if (!photo_.exif.bytes.isEmpty()) {
        result_.exif = WrittenExif(photo_.exif, &bitmap_, thumbnail_);
    }
    result_.xmp = Packet();
    result_.iptc = photo_.iptc;
    return std::move(result_);
}

// IPTC has no place in such files.
WrittenMetadata Assembly::Jxl() {
    WrittenMetadata written = Png();
    if (!written.iptc.isEmpty()) {
        written.iptc.clear();
        written.notes += ReasonCode::TypeHoldsNoIptc;
    }
    return written;
}

WrittenMetadata Assembly::Tiff() {
    result_.exif = WrittenExifWithoutThumbnail(photo_.exif, bitmap_.Size());
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
constexpr std::array lostCodes{ReasonCode::None,
                               ReasonCode::TypeHoldsNoMetadata,
                               ReasonCode::TypeHoldsNoSettings,
                               ReasonCode::TypeHoldsNoMetadataOrSettings,
                               ReasonCode::TypeHoldsNoProfile,
                               ReasonCode::TypeHoldsNoMetadataOrProfile,
                               ReasonCode::TypeHoldsNoSettingsOrProfile,
                               ReasonCode::TypeHoldsPixelsOnly};

Reason Assembly::LostIn(OutputType type) const {
    const OutputAbilities& holds = FormatOf(type).holds;
    const std::size_t lost =
        (!holds.metadata && (IsWorthKeeping() || own_.panorama) ? 1U : 0U) +
        (!holds.metadata && !own_.settings.isEmpty() ? 2U : 0U) +
        (!holds.profile && !bitmap_.metadata.colourProfile.isEmpty() ? 4U : 0U);
    return lost == 0 ? Reason() : Reason(lostCodes[lost], ToText(type));
}

}  // namespace

WrittenMetadata MetadataForJpeg(const Bitmap& bitmap, const Bitmap* thumbnail) {
    Assembly assembly(bitmap, thumbnail);
    return assembly.IsNeeded() ? assembly.Jpeg() : WrittenMetadata();
}

WrittenMetadata MetadataForPng(const Bitmap& bitmap, const Bitmap* thumbnail) {
    Assembly assembly(bitmap, thumbnail);
    return assembly.IsNeeded() ? assembly.Png() : WrittenMetadata();
}

WrittenMetadata MetadataForJxl(const Bitmap& bitmap) {
    Assembly assembly(bitmap);
    return assembly.IsNeeded() ? assembly.Jxl() : WrittenMetadata();
}

WrittenMetadata MetadataForTiff(const Bitmap& bitmap) {
    Assembly assembly(bitmap);
    return assembly.IsNeeded() ? assembly.Tiff() : WrittenMetadata();
}

Reason LostIn(OutputType type, const Bitmap& bitmap) {
    return Assembly(bitmap).LostIn(type);
}

QByteArray IptcResource(const QByteArray& iptc) {
    QByteArray resource("8BIM\x04\x04\0\0\0\0\0\0", 12);
    qToBigEndian(static_cast<quint32>(iptc.size()), resource.data() + 8);
    resource += iptc;
    return resource.append(iptc.size() % 2, '\0');
}

}  // namespace varnel
