// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/metadata/exif_block.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exiv2/exiv2.hpp>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

constexpr std::uint32_t thumbnailRoom = 12288;  // bytes; 160 x 120 pixels take half of it
constexpr std::uint32_t leastThumbnailRoom = 6144;
constexpr std::string_view software = "Varnel " VARNEL_VERSION;

enum Tag : std::uint16_t {
    ThumbnailLength = 0x0202,
    PositionOfChroma = 0x0213,
    ExifDirectory = 0x8769,
    PixelXDimension = 0xA002,
    PixelYDimension = 0xA003,
};

struct Span {
    std::uint16_t first;
    std::uint16_t last;
};

// Of the first directory: what describes how the old file kept its pixels, what is kept in another
// way (XMP, IPTC, the colour profile), and what belongs to developing a raw photo.
constexpr std::array ofTheOldFile{
    Span{0x00FE, 0x0103}, Span{0x0106, 0x010A}, Span{0x0111, 0x0111}, Span{0x0115, 0x0119},
    Span{0x011C, 0x0125}, Span{0x0129, 0x0129}, Span{0x013D, 0x013D}, Span{0x0140, 0x0145},
    Span{0x014A, 0x014A}, Span{0x014C, 0x015B}, Span{0x0200, 0x0209}, Span{0x0211, 0x0212},
    Span{0x0214, 0x0214}, Span{0x02BC, 0x02BC}, Span{0x828D, 0x828E}, Span{0x83BB, 0x83BB},
    Span{0x8649, 0x8649}, Span{0x8773, 0x8773}, Span{0x9216, 0x9216}, Span{0x935C, 0x935C},
    Span{0xC612, 0xC613}, Span{0xC615, 0xC62E}, Span{0xC631, 0xC7FF}};

bool IsOfTheOldFile(std::uint16_t tag) {
    return std::any_of(ofTheOldFile.begin(), ofTheOldFile.end(),
                       [tag](const Span& span) { return tag >= span.first && tag <= span.last; });
}

bool IsOfAnotherPicture(const std::string& group) {
    return group == "Thumbnail" || group.starts_with("SubImage") || group.starts_with("SubThumb") ||
           group == "Image2" || group == "Image3" || group.starts_with("PanasonicRaw") ||
           group == "NikonPreview";
}

// Maker notes hold further small pictures, and some viewers take the largest that they find.
bool ShowsTheOldPicture(const Exiv2::Exifdatum& datum) {
    const std::string name = datum.tagName();
    return name.find("Preview") != std::string::npos || name.find("Thumbnail") != std::string::npos;
}

bool IsStale(const Exiv2::Exifdatum& datum) {
    const std::string group = datum.groupName();
    if (group == "Photo") {
        // The size of the old file, and places in the old picture.
        return datum.tag() == 0x9102 || datum.tag() == 0x9214 || datum.tag() == 0xA214;
    }
    return group == "Image" ? IsOfTheOldFile(datum.tag())
                            : IsOfAnotherPicture(group) || ShowsTheOldPicture(datum);
}

void Clean(Exiv2::ExifData& data) {
    for (auto datum = data.begin(); datum != data.end();) {
        datum = IsStale(*datum) ? data.erase(datum) : std::next(datum);
    }
}

template <class Value>
void SetMissing(Exiv2::ExifData& data, const char* key, const Value& value) {
    if (data.findKey(Exiv2::ExifKey(key)) == data.end()) {
        data[key] = value;
    }
}

Exiv2::URational Hundredths(double value) {
    return {static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.01, 1e6) * 100.0)), 100};
}

void SetUndefined(Exiv2::ExifData& data, const char* key, const char* bytes) {
    if (data.findKey(Exiv2::ExifKey(key)) == data.end()) {
        Exiv2::DataValue value(Exiv2::undefined);
        value.read(bytes);
        data.add(Exiv2::ExifKey(key), &value);
    }
}

// The standard wants these in every file (Exif 2.3, table 20).
void SetRequired(Exiv2::ExifData& data, const ExifWishes& wishes) {
    constexpr std::uint16_t inches = 2;
    constexpr std::uint16_t srgb = 1;
    constexpr std::uint16_t uncalibrated = 0xFFFF;
    SetMissing(data, "Exif.Image.XResolution", Hundredths(wishes.dotsPerInchX));
    SetMissing(data, "Exif.Image.YResolution", Hundredths(wishes.dotsPerInchY));
    SetMissing(data, "Exif.Image.ResolutionUnit", inches);
    SetUndefined(data, "Exif.Photo.ExifVersion", "48 50 51 48");
    SetUndefined(data, "Exif.Photo.ComponentsConfiguration", "1 2 3 0");
    SetUndefined(data, "Exif.Photo.FlashpixVersion", "48 49 48 48");
    SetMissing(data, "Exif.Photo.ColorSpace", wishes.isSrgb ? srgb : uncalibrated);
}

void SetFacts(Exiv2::ExifData& data, const ExifWishes& wishes) {
    data["Exif.Image.Software"] = std::string(software);
    const Exiv2::ExifKey orientation("Exif.Image.Orientation");
    if (wishes.upright || data.findKey(orientation) == data.end()) {
        data[orientation.key()] = std::uint16_t{1};
    }
    data["Exif.Photo.PixelXDimension"] = static_cast<std::uint32_t>(wishes.size.width);
    data["Exif.Photo.PixelYDimension"] = static_cast<std::uint32_t>(wishes.size.height);
    data["Exif.Image.YCbCrPositioning"] = std::uint16_t{1};  // centred, as the coder has it
}

constexpr QByteArrayView placeholderBegin("Varnel puts the picture's thumbnail here.");

QByteArray Placeholder(std::uint32_t length) {
    QByteArray bytes = placeholderBegin.toByteArray();
    bytes.resize(static_cast<qsizetype>(length), '\0');
    return bytes;
}

void FindPlaces(ExifBlock& block, const QByteArray& placeholder) {
    const IfdReader reader(block.bytes);
    const Ifd first = reader.Directory(reader.First());
    const Ifd exif = reader.Directory(reader.Number(first.Find(ExifDirectory)));
    block.width = reader.LongPlace(exif.Find(PixelXDimension));
    block.height = reader.LongPlace(exif.Find(PixelYDimension));
    const qsizetype thumbnail =
        placeholder.isEmpty() ? -1 : block.bytes.lastIndexOf(placeholderBegin);
    const std::uint32_t length =
        reader.LongPlace(reader.Directory(first.next).Find(ThumbnailLength));
    if (thumbnail > 0 && length != 0) {
        block.thumbnail = static_cast<std::uint32_t>(thumbnail);
        block.thumbnailLength = length;
        block.thumbnailRoom = static_cast<std::uint32_t>(placeholder.size());
    }
}

QByteArray SetPlaceholder(Exiv2::ExifData& data, bool wanted, std::uint32_t room) {
    if (!wanted) {
        return {};
    }
    constexpr std::uint16_t inches = 2;
    QByteArray placeholder = Placeholder(room);
    Exiv2::ExifThumb(data).setJpegThumbnail(
        reinterpret_cast<const Exiv2::byte*>(placeholder.constData()), placeholder.size(), {72, 1},
        {72, 1}, inches);
    return placeholder;
}

ExifBlock WholeBlock(Exiv2::ExifData& data, Exiv2::ByteOrder order, bool thumbnail) {
    const QByteArray placeholder = SetPlaceholder(data, thumbnail, thumbnailRoom);
    Exiv2::MemIo memory;
    Exiv2::IptcData noIptc;
    Exiv2::XmpData noXmp;
    Exiv2::TiffParser::encode(memory, nullptr, 0, order, data, noIptc, noXmp);
    ExifBlock block;
    block.bytes = QByteArray(reinterpret_cast<const char*>(memory.mmap()),
                             static_cast<qsizetype>(memory.size()));
    FindPlaces(block, placeholder);
    return block;
}

// The library leaves out what is large and least missed until the rest fits.
ExifBlock ShortBlock(Exiv2::ExifData& data, Exiv2::ByteOrder order, bool thumbnail) {
    const QByteArray placeholder = SetPlaceholder(data, thumbnail, leastThumbnailRoom);
    Exiv2::Blob bytes;
    Exiv2::ExifParser::encode(bytes, order, data);
    ExifBlock block;
    block.bytes = QByteArray(reinterpret_cast<const char*>(bytes.data()),
                             static_cast<qsizetype>(bytes.size()));
    FindPlaces(block, placeholder);
    return block;
}

QByteArray EntriesForTiff(const ExifBlock& block) {
    const IfdReader reader(block.bytes);
    QByteArray entries;
    for (const IfdEntry& entry : reader.Directory(reader.First()).entries) {
        if (!IsOfTheOldFile(entry.tag) && entry.tag != PositionOfChroma) {
            entries += block.bytes.mid(entry.place, reader.EntryBytes());
        }
    }
    return entries;
}

auto AllOf(const ExifWishes& wishes) {
    return std::tuple(wishes.size.width, wishes.size.height, wishes.upright, wishes.byteOrder,
                      wishes.dotsPerInchX, wishes.dotsPerInchY, wishes.isSrgb);
}

// What a photo without EXIF gets is the same for many photos of a batch, and takes the library
// about a twentieth of the time of decoding one of 600 x 400.
struct MadeOfNothing {
    ExifWishes wishes;
    ExifBlock exif;
    QByteArray tiffEntries;
};
std::optional<MadeOfNothing>& LastMade() {
    thread_local std::optional<MadeOfNothing> last;
    return last;
}

}  // namespace

void FillExif(Exiv2::ExifData data, const ExifWishes& wishes, PhotoMetadata& metadata) {
    const bool isNothing = data.empty();
    if (isNothing && LastMade() && AllOf(LastMade()->wishes) == AllOf(wishes)) {
        metadata.exif = LastMade()->exif;
        metadata.tiffEntries = LastMade()->tiffEntries;
        return;
    }
    const bool thumbnail =
        data.findKey(Exiv2::ExifKey("Exif.Thumbnail.JPEGInterchangeFormat")) != data.end() ||
        data.findKey(Exiv2::ExifKey("Exif.Thumbnail.StripOffsets")) != data.end();
    Clean(data);
    SetFacts(data, wishes);
    SetRequired(data, wishes);
    metadata.exif = WholeBlock(data, wishes.byteOrder, thumbnail);
    metadata.tiffEntries = EntriesForTiff(metadata.exif);
    if (metadata.exif.bytes.size() > longestExifInJpeg) {
        metadata.exifForJpeg = ShortBlock(data, wishes.byteOrder, thumbnail);
        if (metadata.exifForJpeg.bytes.size() > longestExifInJpeg) {
            metadata.exifForJpeg = {};
        }
    }
    if (isNothing) {
        LastMade() = {wishes, metadata.exif, metadata.tiffEntries};
    }
}

}  // namespace varnel
