// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/photo_date.h"

#include <QDateTime>
#include <QFileInfo>

#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

// Tags of EXIF.
constexpr std::uint16_t dateTime = 0x0132;
constexpr std::uint16_t exifDirectory = 0x8769;
constexpr std::uint16_t dateTimeOriginal = 0x9003;
constexpr std::uint16_t dateTimeDigitized = 0x9004;

// "2014:05:03 17:12:46"; cameras whose clock was never set write zeros or blanks.
QDate DayOf(const IfdReader& reader, const Ifd& directory, std::uint16_t tag) {
    constexpr qsizetype dayLetters = 10;
    const IfdEntry* const entry = directory.Find(tag);
    if (entry == nullptr) {
        return {};
    }
    const QByteArray text = reader.Bytes(*entry, dayLetters);
    return QDate::fromString(QString::fromLatin1(text), QStringLiteral("yyyy:MM:dd"));
}

}  // namespace

QDate ExifDate(const ExifBlock& exif) {
    const IfdReader reader(exif.bytes);
    if (!reader.IsTiff()) {
        return {};
    }
    const Ifd first = reader.Directory(reader.First());
    const Ifd inner = reader.Directory(reader.Number(first.Find(exifDirectory)));
    for (const std::uint16_t tag : {dateTimeOriginal, dateTimeDigitized}) {
        if (const QDate day = DayOf(reader, inner, tag); day.isValid()) {
            return day;
        }
    }
    return DayOf(reader, first, dateTime);
}

QDate PhotoDate(const PhotoMetadata& metadata, const QString& path) {
    const QDate day = ExifDate(metadata.exif);
    return day.isValid() ? day : QFileInfo(path).lastModified().date();
}

}  // namespace varnel
