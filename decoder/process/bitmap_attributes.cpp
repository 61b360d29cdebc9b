// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// All metadata on their way from the decoder: as Qt's data streams, in the order of the members.
#include <QDataStream>
#include <QIODevice>

#include "decoder/process/protocol.h"

namespace varnel {

namespace {

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

QDataStream& operator<<(QDataStream& out, const PhotoMetadata& photo) {
    return out << photo.exif << photo.exifForJpeg << photo.tiffEntries << photo.iptc << photo.xmp
               << photo.xmpPlace << photo.origin << photo.settings << photo.notes;
}

QDataStream& operator>>(QDataStream& in, PhotoMetadata& photo) {
    return in >> photo.exif >> photo.exifForJpeg >> photo.tiffEntries >> photo.iptc >> photo.xmp >>
           photo.xmpPlace >> photo.origin >> photo.settings >> photo.notes;
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

// Keywords end at a zero byte once they are written.
bool IsKeyword(const QByteArray& key) {
    return !key.isEmpty() && !key.contains('\0');
}

}  // namespace

QByteArray PackAttributes(const BitmapMetadata& metadata) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << metadata.dotsPerMetreX << metadata.dotsPerMetreY << metadata.colourProfile
        << metadata.comments;
    return block;
}

BitmapMetadata UnpackAttributes(const QByteArray& block) {
    QDataStream in(block);
    BitmapMetadata metadata;
    in >> metadata.dotsPerMetreX >> metadata.dotsPerMetreY >> metadata.colourProfile;
    if (in.status() != QDataStream::Ok) {
        return {};
    }
    in >> metadata.comments;
    metadata.comments.removeIf(
        [](const std::pair<const QByteArray&, QByteArray&>& one) { return !IsKeyword(one.first); });
    return metadata;
}

QByteArray PackFileMetadata(const FileMetadata& metadata) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << metadata.colourProfile << metadata.metadata;
    return block;
}

FileMetadata UnpackFileMetadata(const QByteArray& block) {
    QDataStream in(block);
    FileMetadata metadata;
    in >> metadata.colourProfile;
    if (in.status() != QDataStream::Ok) {
        return {};
    }
    in >> metadata.metadata;
    const bool whole = in.status() == QDataStream::Ok && in.atEnd();
    return whole && IsSound(metadata.metadata) ? metadata
                                               : FileMetadata{{}, metadata.colourProfile};
}

}  // namespace varnel
