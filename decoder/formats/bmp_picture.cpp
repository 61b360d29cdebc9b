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
constexpr std::int64_t oldHeaderBytes = 12;
constexpr std::int64_t plainHeaderBytes = 40;

std::uint32_t U32(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

std::uint16_t U16(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

BmpHeader OldHeader(const QByteArray& bytes) {
    BmpHeader header;
    header.width = U16(bytes, 18);
    header.height = U16(bytes, 20);
    header.depth = U16(bytes, 24);
    return header;
}

BmpHeader NewHeader(const QByteArray& bytes) {
    BmpHeader header;
    header.width = static_cast<std::int32_t>(U32(bytes, 18));
    header.height = qAbs<std::int64_t>(static_cast<std::int32_t>(U32(bytes, 22)));
    header.depth = U16(bytes, 28);
    header.coding = static_cast<BmpCoding>(U32(bytes, 30));
    header.perMeterX = static_cast<std::int32_t>(U32(bytes, 38));
    header.perMeterY = static_cast<std::int32_t>(U32(bytes, 42));
    return header;
}

// Where pixels begin at the earliest: behind headers, masks and colour table.
std::int64_t EarliestPixels(const BmpHeader& header, std::uint32_t statedColours) {
    const bool old = header.headerBytes == oldHeaderBytes;
    std::int64_t colours = 0;
    if (header.depth <= 8) {
        const std::int64_t most = std::int64_t{1} << header.depth;
        colours = old || statedColours == 0 || statedColours > most ? most : statedColours;
    }
    const bool masks = header.headerBytes == plainHeaderBytes && header.coding == BmpCoding::Masks;
    return fileHeaderBytes + header.headerBytes + colours * (old ? 3 : 4) + (masks ? 12 : 0);
}

// Reads run-length codes as far as the picture's end.
class RunWalk {
  public:
    RunWalk(const QByteArray& codes, const BmpHeader& header) : codes_(codes), header_(header) {}

    // Whether the codes reach the end mark or the end of the last row.
    bool ReachesEnd() {
        while (at_ + 2 <= codes_.size()) {
            const int first = Code(at_);
            const int second = Code(at_ + 1);
            at_ += 2;
            if (first > 0) {
                column_ += first;
            } else if (second > 2) {
                const int bytes = header_.coding == BmpCoding::Rle8 ? second : (second + 1) / 2;
                at_ += (bytes + 1) / 2 * 2;
                column_ += second;
            } else if (!Escape(second)) {
                return true;
            }
        }
        // Some writers leave out the last marks, and a last filler byte.
        return at_ <= codes_.size() + 1 &&
               (row_ >= header_.height || (row_ == header_.height - 1 && column_ >= header_.width));
    }

  private:
    int Code(qsizetype at) const { return static_cast<unsigned char>(codes_.at(at)); }
    // False at the end mark.
    bool Escape(int code) {
        if (code == 0) {
            ++row_;
            column_ = 0;
        } else if (code == 2 && at_ + 2 <= codes_.size()) {
            column_ += Code(at_);
            row_ += Code(at_ + 1);
            at_ += 2;
        }
        return code != 1;
    }

    const QByteArray& codes_;
    const BmpHeader& header_;
    qsizetype at_ = 0;
    std::int64_t column_ = 0;
    std::int64_t row_ = 0;
};

bool IsRunLength(const BmpHeader& header) {
    return header.coding == BmpCoding::Rle8 || header.coding == BmpCoding::Rle4;
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

std::optional<BmpHeader> ReadBmpHeader(const PictureFile& file) {
    const QByteArray bytes = file.Read(0, fileHeaderBytes + plainHeaderBytes);
    if (bytes.size() < fileHeaderBytes + oldHeaderBytes || !bytes.startsWith("BM")) {
        return std::nullopt;
    }
    const std::int64_t headerBytes = U32(bytes, fileHeaderBytes);
    const bool old = headerBytes == oldHeaderBytes;
    if (!old &&
        (headerBytes < plainHeaderBytes || bytes.size() < fileHeaderBytes + plainHeaderBytes)) {
        return std::nullopt;
    }
    BmpHeader header = old ? OldHeader(bytes) : NewHeader(bytes);
    header.headerBytes = headerBytes;
    header.pixelPlace =
        std::max<std::int64_t>(U32(bytes, 10), EarliestPixels(header, old ? 0 : U32(bytes, 46)));
    return header;
}

bool BmpIsCut(const PictureFile& file, const BmpHeader& header) {
    if (IsRunLength(header)) {
        const QByteArray codes = file.Read(header.pixelPlace, file.Length());
        return !RunWalk(codes, header).ReachesEnd();
    }
    const std::int64_t rowBits = header.width * header.depth;
    // The last row may do without its fill bytes.
    const std::int64_t pixelBytes =
        (rowBits + 31) / 32 * 4 * (header.height - 1) + (rowBits + 7) / 8;
    return file.Length() < header.pixelPlace + pixelBytes;
}

bool NeedsBmpReader(const BmpHeader& header) {
    return header.headerBytes > plainHeaderBytes || IsRunLength(header);
}

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
