// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/bmp_picture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <iterator>
#include <utility>

namespace varnel {

namespace {

constexpr std::int64_t fileHeaderBytes = 14;
constexpr std::int64_t plainHeaderBytes = 40;

std::uint32_t U32(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

// Qt's answer has alpha where the file has; it is dropped, not blended.
BitmapHandle Copied(const QImage& image) {
    BitmapHandle bitmap = NewBitmap({image.width(), image.height()});
    for (int y = 0; y < image.height(); ++y) {
        const auto* const from =
            reinterpret_cast<const QRgb*>(image.constScanLine(image.height() - 1 - y));
        std::uint8_t* to = ScanLine(bitmap.get(), y).data();
        for (int x = 0; x < image.width(); ++x, to += 3) {
            to[0] = static_cast<std::uint8_t>(qBlue(from[x]));
            to[1] = static_cast<std::uint8_t>(qGreen(from[x]));
            to[2] = static_cast<std::uint8_t>(qRed(from[x]));
        }
    }
    return bitmap;
}

// The largest header may name a profile within the file, its place counted from the header.
void AddProfile(const PictureFile& file, const BmpHeader& header, BitmapMetadata& metadata) {
    constexpr std::int64_t largestHeader = 124;
    constexpr std::uint32_t embedded = 0x4D424544;  // "MBED"
    const QByteArray bytes = file.Read(fileHeaderBytes, largestHeader);
    if (header.headerBytes != largestHeader || bytes.size() < largestHeader ||
        U32(bytes, 56) != embedded) {
        return;
    }
    const std::int64_t size = U32(bytes, 116);
    QByteArray profile = file.Read(fileHeaderBytes + U32(bytes, 112), size);
    if (size > 0 && profile.size() == size) {
        metadata.colourProfile = std::move(profile);
    }
}

// Qt knows no header of 52 or 56 bytes. The first 40 bytes are those of the plain one, and the
// three masks that follow them stand there in a plain one's file, too; the rest is taken out.
QByteArray WithKnownHeader(QByteArray bytes, const BmpHeader& header) {
    constexpr std::int64_t extendedBytes[] = {52, 56};
    if (std::ranges::find(extendedBytes, header.headerBytes) == std::end(extendedBytes)) {
        return bytes;
    }
    const bool masks = header.coding == BmpCoding::Masks || header.coding == BmpCoding::AlphaMasks;
    const std::int64_t kept = plainHeaderBytes + (masks ? 12 : 0);
    const std::int64_t removed = header.headerBytes - kept;
    bytes.remove(fileHeaderBytes + kept, removed);
    qToLittleEndian(static_cast<quint32>(header.pixelPlace - removed), bytes.data() + 10);
    qToLittleEndian(static_cast<quint32>(plainHeaderBytes), bytes.data() + fileHeaderBytes);
    if (masks) {
        qToLittleEndian(static_cast<quint32>(BmpCoding::Masks), bytes.data() + 30);
    }
    return bytes;
}

}  // namespace

BitmapHandle LoadBmp(const PictureFile& file, const BmpHeader& header) {
    if (file.Length() <= header.pixelPlace) {
        return nullptr;
    }
    QByteArray bytes = WithKnownHeader(file.Read(0, file.Length()), header);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "bmp");
    reader.setAutoDetectImageFormat(false);
    QImageReader::setAllocationLimit(0);  // the size was looked at before
    QImage image = reader.read();
    if (image.isNull()) {
        return nullptr;
    }
    if (image.format() != QImage::Format_RGB32 && image.format() != QImage::Format_ARGB32) {
        image.convertTo(QImage::Format_RGB32);
    }
    BitmapHandle bitmap = Copied(image);
    if (header.perMeterX > 0 && header.perMeterY > 0) {
        bitmap->metadata.dotsPerMetreX = static_cast<std::uint32_t>(header.perMeterX);
        bitmap->metadata.dotsPerMetreY = static_cast<std::uint32_t>(header.perMeterY);
    }
    AddProfile(file, header, bitmap->metadata);
    return bitmap;
}

}  // namespace varnel
