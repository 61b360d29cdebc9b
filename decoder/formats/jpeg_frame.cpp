// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/jpeg_frame.h"

#include <QtEndian>
#include <algorithm>

namespace varnel {

namespace {

constexpr int startOfScan = 0xDA;
constexpr int endOfImage = 0xD9;

constexpr int exifSegment = 0xE1;  // and XMP's, and others' blocks

// Restart markers, start of image and the like stand alone.
bool HasSegment(int marker) {
    return marker > 0x01 && (marker < 0xD0 || marker > 0xD9);
}

// All frame headers; the gaps are Huffman tables, reserved, and arithmetic conditioning.
bool IsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Walks from marker to marker, over their segments and over garbage and fill bytes between them as
// the library does.
class MarkerWalk {
  public:
    explicit MarkerWalk(const PictureFile& file) : file_(file) {}

    // Goes to the next marker; false where the file ends.
    bool Next() {
        if (HasSegment(marker_)) {
            place_ = SegmentEnd();
        }
        marker_ = FindMarker();
        return marker_ >= 0;
    }
    // The same, false also where the pixels begin or the picture ends.
    bool NextInHeader() { return Next() && marker_ != startOfScan && marker_ != endOfImage; }

    int Marker() const { return marker_; }  // -1 where the file ended
    // Behind the marker's two bytes.
    std::int64_t Place() const { return place_; }
    // Of the bytes behind the segment's length as many as asked for at most.
    QByteArray Segment(int most) const {
        return file_.Read(place_ + 2, std::clamp<std::int64_t>(SegmentEnd() - place_ - 2, 0, most));
    }

  private:
    std::int64_t SegmentEnd() const {
        const QByteArray length = file_.Read(place_, 2);
        return length.size() < 2
                   ? file_.Length()
                   : place_ + qMax<int>(2, qFromBigEndian<quint16>(length.constData()));
    }

    int FindMarker() {
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

    int Byte() {
        if (place_ < blockPlace_ || place_ >= blockPlace_ + block_.size()) {
            const bool isFirst = blockPlace_ == 0 && block_.isEmpty();
            block_ = file_.Read(place_, isFirst ? 4096 : 65536);  // many headers are short
            blockPlace_ = place_;
            if (block_.isEmpty()) {
                return -1;
            }
        }
        return static_cast<unsigned char>(block_.at(place_++ - blockPlace_));
    }

    const PictureFile& file_;
    int marker_ = -1;
    std::int64_t place_ = 0;
    QByteArray block_;
    std::int64_t blockPlace_ = 0;
};

}  // namespace

std::optional<PixelSize> JpegSize(const PictureFile& file) {
    for (MarkerWalk walk(file); walk.NextInHeader();) {
        const QByteArray segment = IsFrame(walk.Marker()) ? walk.Segment(5) : QByteArray();
        if (segment.size() == 5) {  // precision, height, width
            return PixelSize{qFromBigEndian<quint16>(segment.constData() + 3),
                             qFromBigEndian<quint16>(segment.constData() + 1)};
        }
    }
    return std::nullopt;
}

std::vector<std::int64_t> JpegMetadataMarkers(const PictureFile& file) {
    constexpr int iptcSegment = 0xED;
    std::vector<std::int64_t> places;
    for (MarkerWalk walk(file); walk.NextInHeader();) {
        if (walk.Marker() == exifSegment || walk.Marker() == iptcSegment) {
            places.push_back(walk.Place() - 1);
        }
    }
    return places;
}

QByteArray HeaderWithoutExif(const PictureFile& file) {
    constexpr QByteArrayView start("\xFF\xD8", 2);
    constexpr QByteArrayView end("\xFF\xD9", 2);
    constexpr QByteArrayView exif("Exif\0\0", 6);
    constexpr char unused = '\xEF';
    MarkerWalk walk(file);
    while (walk.NextInHeader()) {
    }
    QByteArray header = file.Read(0, walk.Place() - 2);
    if (walk.Marker() < 0 || !header.startsWith(start)) {
        return {};
    }
    for (const std::int64_t place : JpegMetadataMarkers(file)) {
        constexpr std::int64_t markerAndLength = 3;
        if (header.indexOf(exif, place) == place + markerAndLength) {
            header[static_cast<qsizetype>(place)] = unused;
        }
    }
    return header.append(end);
}

QByteArray JpegExif(const PictureFile& file) {
    constexpr int mostBytes = 65533;
    for (MarkerWalk walk(file); walk.NextInHeader();) {
        if (walk.Marker() != exifSegment) {
            continue;
        }
        QByteArray segment = walk.Segment(mostBytes);
        if (segment.startsWith(QByteArrayView("Exif\0\0", 6))) {
            return segment;
        }
    }
    return {};
}

bool JpegIsCut(const PictureFile& file) {
    MarkerWalk walk(file);
    while (walk.Next() && walk.Marker() != endOfImage) {
    }
    return walk.Marker() < 0;
}

}  // namespace varnel
