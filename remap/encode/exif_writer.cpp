// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/exif_writer.h"

#include <QtEndian>
#include <algorithm>

#include "remap/encode/coders/jpeg_coder.h"
#include "remap/encode/thumbnail.h"

namespace varnel {

namespace {

bool Holds(const QByteArray& bytes, std::uint64_t place, std::uint64_t length) {
    return place != 0 && place + length <= static_cast<std::uint64_t>(bytes.size());
}

void Put(QByteArray& bytes, std::uint32_t place, qint64 number) {
    if (!Holds(bytes, place, sizeof(quint32))) {
        return;
    }
    const auto value = static_cast<quint32>(number);
    char* const at = bytes.data() + place;
    bytes.startsWith('M') ? qToBigEndian(value, at) : qToLittleEndian(value, at);
}

// The best that takes no more bytes than that; empty when there is none.
QByteArray ThumbnailFile(const Bitmap* thumbnail, qsizetype room) {
    for (const int quality : {85, 75, 60, 40, 20, 5}) {
        QByteArray file = PlainJpeg(thumbnail, quality);
        if (file.size() <= room) {
            return file;
        }
    }
    return {};
}

void PutThumbnail(QByteArray& bytes, const ExifBlock& block, const QByteArray& thumbnail) {
    char* const room = bytes.data() + block.thumbnail;
    char* const rest = std::copy(thumbnail.begin(), thumbnail.end(), room);
    std::fill(rest, room + block.thumbnailRoom, '\0');
}

bool HasRoomForThumbnail(const ExifBlock& block) {
    return Holds(block.bytes, block.thumbnail, block.thumbnailRoom);
}

QByteArray Written(const ExifBlock& block, PixelSize size, const QByteArray& thumbnail) {
    QByteArray bytes = block.bytes;
    if (HasRoomForThumbnail(block)) {
        PutThumbnail(bytes, block, thumbnail);
        Put(bytes, block.thumbnailLength, thumbnail.size());
    }
    Put(bytes, block.width, size.width);
    Put(bytes, block.height, size.height);
    return bytes;
}

}  // namespace

QByteArray WrittenExif(const ExifBlock& block, const Bitmap* bitmap, const Bitmap* thumbnail) {
    QByteArray file;
    if (HasRoomForThumbnail(block)) {
        const BitmapHandle own = thumbnail != nullptr ? nullptr : ThumbnailOf(bitmap);
        file = ThumbnailFile(own ? own.get() : thumbnail, block.thumbnailRoom);
    }
    return Written(block, SizeOf(bitmap), file);
}

QByteArray WrittenExifWithoutThumbnail(const ExifBlock& block, PixelSize size) {
    QByteArray bytes = Written(block, size, {});
    const bool lastOfAll =
        std::uint64_t{block.thumbnail} + block.thumbnailRoom == std::uint64_t(bytes.size());
    if (block.thumbnail != 0 && lastOfAll) {
        bytes.truncate(block.thumbnail);
    }
    return bytes;
}

}  // namespace varnel
