// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/jpeg_frame.h"

#include <QtEndian>

namespace varnel {

namespace {

constexpr int startOfScan = 0xDA;
constexpr int endOfImage = 0xD9;

// Walks from marker to marker, over garbage and fill bytes between them as the library does.
class MarkerWalk {
  public:
    explicit MarkerWalk(const PictureFile& file) : file_(file) {}

    // The next marker, -1 where the file ends. The walk then stands behind its two bytes.
    int Next() {
        int byte = Byte();
        while (byte >= 0) {
            while (byte >= 0 && byte != 0xFF) {
                byte = Byte();
            }
            while (byte == 0xFF) {
                byte = Byte();
            }
            if (byte > 0) {  // 0 is a pixel byte 255
                return byte;
            }
        }
        return -1;
    }
    // Of the byte that is read next.
    std::int64_t Place() const { return place_; }
    // The bytes of the segment that follows, as many as asked for at most; goes behind it.
    QByteArray Segment(int most) {
        const QByteArray length = file_.Read(place_, 2);
        if (length.size() < 2) {
            place_ = file_.Length();
            return {};
        }
        const int bytes = qFromBigEndian<quint16>(length.constData());
        const QByteArray contents = file_.Read(place_ + 2, qMin(most, bytes - 2));
        place_ += qMax(bytes, 2);
        return contents;
    }

  private:
    int Byte() {
        if (place_ < blockPlace_ || place_ >= blockPlace_ + block_.size()) {
            constexpr std::int64_t blockBytes = 65536;
            block_ = file_.Read(place_, blockBytes);
            blockPlace_ = place_;
            if (block_.isEmpty()) {
                return -1;
            }
        }
        return static_cast<unsigned char>(block_.at(place_++ - blockPlace_));
    }

    const PictureFile& file_;
    std::int64_t place_ = 0;
    QByteArray block_;
    std::int64_t blockPlace_ = 0;
};

constexpr int exifSegment = 0xE1;  // and XMP's, and others' blocks

// Restart markers, start of image and the like stand alone.
bool HasSegment(int marker) {
    return marker != 0x01 && (marker < 0xD0 || marker > 0xD9);
}

// All frame headers; the gaps are Huffman tables, reserved, and arithmetic conditioning.
bool IsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

}  // namespace

std::optional<PixelSize> JpegSize(const PictureFile& file) {
    MarkerWalk walk(file);
    for (int marker = walk.Next(); marker >= 0 && marker != startOfScan && marker != endOfImage;
         marker = walk.Next()) {
        if (!HasSegment(marker)) {
            continue;
        }
        const QByteArray segment = walk.Segment(5);  // precision, height, width
        if (IsFrame(marker) && segment.size() == 5) {
            return PixelSize{qFromBigEndian<quint16>(segment.constData() + 3),
                             qFromBigEndian<quint16>(segment.constData() + 1)};
        }
    }
    return std::nullopt;
}

std::vector<std::int64_t> JpegMetadataMarkers(const PictureFile& file) {
    constexpr int iptcSegment = 0xED;
    std::vector<std::int64_t> places;
    MarkerWalk walk(file);
    for (int marker = walk.Next(); marker >= 0 && marker != startOfScan && marker != endOfImage;
         marker = walk.Next()) {
        if (marker == exifSegment || marker == iptcSegment) {
            places.push_back(walk.Place() - 1);
        }
        if (HasSegment(marker)) {
            walk.Segment(0);
        }
    }
    return places;
}

QByteArray HeaderWithoutExif(const PictureFile& file) {
    constexpr QByteArrayView start("\xFF\xD8", 2);
    constexpr QByteArrayView end("\xFF\xD9", 2);
    constexpr QByteArrayView exif("Exif\0\0", 6);
    constexpr char unused = '\xEF';
    const std::vector<std::int64_t> markers = JpegMetadataMarkers(file);
    MarkerWalk walk(file);
    int marker = walk.Next();
    for (; marker >= 0 && marker != startOfScan && marker != endOfImage; marker = walk.Next()) {
        if (HasSegment(marker)) {
            walk.Segment(0);
        }
    }
    QByteArray header = file.Read(0, walk.Place() - 2);
    if (marker < 0 || !header.startsWith(start)) {
        return {};
    }
    for (const std::int64_t place : markers) {
        constexpr std::int64_t markerAndLength = 3;
        if (header.indexOf(exif, place) == place + markerAndLength) {
            header[static_cast<qsizetype>(place)] = unused;
        }
    }
    return header.append(end);
}

QByteArray JpegExif(const PictureFile& file) {
    constexpr int mostBytes = 65533;
    MarkerWalk walk(file);
    for (int marker = walk.Next(); marker >= 0 && marker != startOfScan && marker != endOfImage;
         marker = walk.Next()) {
        if (!HasSegment(marker)) {
            continue;
        }
        const QByteArray segment = walk.Segment(marker == exifSegment ? mostBytes : 0);
        if (segment.startsWith(QByteArrayView("Exif\0\0", 6))) {
            return segment;
        }
    }
    return {};
}

bool JpegIsCut(const PictureFile& file) {
    MarkerWalk walk(file);
    int marker = walk.Next();
    while (marker >= 0 && marker != endOfImage) {
        if (HasSegment(marker)) {
            walk.Segment(0);
        }
        marker = walk.Next();
    }
    return marker < 0;
}

}  // namespace varnel
