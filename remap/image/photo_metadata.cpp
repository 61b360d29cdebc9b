// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/photo_metadata.h"

#include <QDataStream>
#include <QIODevice>
#include <memory>
#include <new>

namespace varnel {

namespace {

// The library writes no custom tags into files, so these stay with the bitmap.
constexpr char metadataKey[] = "VarnelMetadata";
constexpr char settingsKey[] = "VarnelSettings";
constexpr qsizetype entryLength = 12;  // bytes of a TIFF directory's entry

QDataStream& operator<<(QDataStream& out, const ExifBlock& exif) {
    return out << exif.bytes << exif.width << exif.height << exif.thumbnail << exif.thumbnailLength
               << exif.thumbnailRoom;
}

QDataStream& operator>>(QDataStream& in, ExifBlock& exif) {
    return in >> exif.bytes >> exif.width >> exif.height >> exif.thumbnail >>
           exif.thumbnailLength >> exif.thumbnailRoom;
}

QDataStream& operator<<(QDataStream& out, const CameraInfo& origin) {
    return out << origin.Make << origin.Model << origin.LensMake << origin.LensModel
               << origin.FocalLength << origin.FNumber;
}

QDataStream& operator>>(QDataStream& in, CameraInfo& origin) {
    return in >> origin.Make >> origin.Model >> origin.LensMake >> origin.LensModel >>
           origin.FocalLength >> origin.FNumber;
}

bool HasRoom(const ExifBlock& exif, std::uint64_t place, std::uint64_t length) {
    return place == 0 || place + length <= static_cast<std::uint64_t>(exif.bytes.size());
}

bool IsSound(const ExifBlock& exif) {
    constexpr std::uint64_t number = 4;
    const bool isTiff = exif.bytes.isEmpty() || exif.bytes.startsWith(QByteArrayView("II*\0", 4)) ||
                        exif.bytes.startsWith(QByteArrayView("MM\0*", 4));
    return isTiff && HasRoom(exif, exif.width, number) && HasRoom(exif, exif.height, number) &&
           HasRoom(exif, exif.thumbnailLength, number) &&
           HasRoom(exif, exif.thumbnail, exif.thumbnailRoom);
}

bool IsSound(const PhotoMetadata& metadata) {
    return IsSound(metadata.exif) && IsSound(metadata.exifForJpeg) &&
           metadata.exifForJpeg.bytes.size() <= longestExifInJpeg &&
           metadata.tiffEntries.size() % entryLength == 0 &&
           metadata.xmpPlace <= static_cast<std::uint64_t>(metadata.xmp.size());
}

struct TagDeleter {
    void operator()(FITAG* tag) const { FreeImage_DeleteTag(tag); }
};

void SetBytes(FIBITMAP* bitmap, const char* key, const QByteArray& bytes) {
    const std::unique_ptr<FITAG, TagDeleter> tag(FreeImage_CreateTag());
    const auto length = static_cast<DWORD>(bytes.size());
    const bool made = tag && FreeImage_SetTagKey(tag.get(), key) == TRUE &&
                      FreeImage_SetTagType(tag.get(), FIDT_BYTE) == TRUE &&
                      FreeImage_SetTagCount(tag.get(), length) == TRUE &&
                      FreeImage_SetTagLength(tag.get(), length) == TRUE &&
                      FreeImage_SetTagValue(tag.get(), bytes.constData()) == TRUE &&
                      FreeImage_SetMetadata(FIMD_CUSTOM, bitmap, key, tag.get()) == TRUE;
    if (!made) {
        throw std::bad_alloc();
    }
}

// Valid as long as the bitmap keeps them.
QByteArrayView BytesOf(FIBITMAP* bitmap, const char* key) {
    FITAG* tag = nullptr;
    if (FreeImage_GetMetadata(FIMD_CUSTOM, bitmap, key, &tag) != TRUE) {
        return {};
    }
    return {static_cast<const char*>(FreeImage_GetTagValue(tag)),
            static_cast<qsizetype>(FreeImage_GetTagLength(tag))};
}

template <class Value>
QByteArray Packed(const Value& value) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << value;
    return block;
}

}  // namespace

QByteArray PackMetadata(const PhotoMetadata& metadata) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << metadata.exif << metadata.exifForJpeg << metadata.tiffEntries << metadata.iptc
        << metadata.xmp << metadata.xmpPlace << metadata.origin << metadata.settings
        << metadata.notes;
    return block;
}

PhotoMetadata UnpackMetadata(QByteArrayView block) {
    PhotoMetadata metadata;
    QDataStream in(QByteArray::fromRawData(block.data(), block.size()));
    in >> metadata.exif >> metadata.exifForJpeg >> metadata.tiffEntries >> metadata.iptc >>
        metadata.xmp >> metadata.xmpPlace >> metadata.origin >> metadata.settings >> metadata.notes;
    const bool whole = in.status() == QDataStream::Ok && in.atEnd();
    return whole && IsSound(metadata) ? metadata : PhotoMetadata{};
}

void SetMetadata(FIBITMAP* bitmap, const PhotoMetadata& metadata) {
    SetBytes(bitmap, metadataKey, PackMetadata(metadata));
}

PhotoMetadata MetadataOf(FIBITMAP* bitmap) {
    return UnpackMetadata(BytesOf(bitmap, metadataKey));
}

void DropMetadata(FIBITMAP* bitmap) {
    for (int model = FIMD_COMMENTS; model <= FIMD_EXIF_RAW; ++model) {
        const char* const key = model == FIMD_CUSTOM ? metadataKey : nullptr;  // none: all
        FreeImage_SetMetadata(static_cast<FREE_IMAGE_MDMODEL>(model), bitmap, key, nullptr);
    }
    if (FreeImage_GetMetadataCount(FIMD_CUSTOM, bitmap) ==
        0) {  // the library expects no empty list
        FreeImage_SetMetadata(FIMD_CUSTOM, bitmap, nullptr, nullptr);
    }
    FreeImage_SetThumbnail(bitmap, nullptr);
}

void SetSettings(FIBITMAP* bitmap, const PictureSettings& settings) {
    SetBytes(bitmap, settingsKey, Packed(settings));
}

PictureSettings SettingsOf(FIBITMAP* bitmap) {
    const QByteArrayView bytes = BytesOf(bitmap, settingsKey);
    PictureSettings settings;
    QDataStream in(QByteArray::fromRawData(bytes.data(), bytes.size()));
    in >> settings;
    return settings;
}

}  // namespace varnel
