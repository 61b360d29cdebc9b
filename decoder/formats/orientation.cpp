// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/orientation.h"

#include <QtEndian>

#include "decoder/formats/jpeg_frame.h"
#include "remap/image/exif_orientation.h"
#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

constexpr std::int64_t mostExif = 1 << 20;  // bytes; the first directory lies in front
constexpr int mostChunks = 200'000;         // a sound PNG of 800 megabytes has half of them

// A file of chunks, each with a head of eight bytes: length and name, in whichever order.
struct ChunkKind {
    QByteArrayView name;  // of the one with EXIF
    int start;            // the first chunk's place
    bool bigEndian;       // and so is the length in front of the name
    int after;            // bytes of a checksum
    int evenTo;           // lengths are rounded up to that
};

constexpr ChunkKind pngChunks{"eXIf", 8, true, 4, 1};
constexpr ChunkKind webpChunks{"EXIF", 12, false, 0, 2};

QByteArray ExifChunk(const ChunkKind& kind, const PictureFile& file) {
    constexpr int headBytes = 8;
    std::int64_t place = kind.start;
    for (int n = 0; n < mostChunks; ++n) {
        const QByteArray head = file.Read(place, headBytes);
        if (head.size() < headBytes) {
            return {};
        }
        const std::int64_t length = kind.bigEndian
                                        ? qFromBigEndian<quint32>(head.constData())
                                        : qFromLittleEndian<quint32>(head.constData() + 4);
        if (QByteArrayView(head).sliced(kind.bigEndian ? 4 : 0, 4) == kind.name) {
            return file.Read(place + headBytes, qMin(length, mostExif));
        }
        place += headBytes + (length + kind.evenTo - 1) / kind.evenTo * kind.evenTo + kind.after;
    }
    return {};
}

}  // namespace

int OrientationInExif(QByteArrayView block) {
    constexpr QByteArrayView mark("Exif\0\0", 6);
    constexpr std::uint16_t orientation = 274;
    const IfdReader exif(block.startsWith(mark) ? block.sliced(mark.size()) : block);
    const std::uint32_t told =
        exif.IsTiff() ? exif.Number(exif.Directory(exif.First()).Find(orientation)) : 0;
    return IsOrientation(told) ? static_cast<int>(told) : 1;
}

int OrientationOf(InputFormat format, const PictureFile& file,
                  const std::optional<TiffStructure>& tiff) {
    switch (format) {
        case InputFormat::Jpeg:
            return OrientationInExif(JpegExif(file));
        case InputFormat::Png:
            return OrientationInExif(ExifChunk(pngChunks, file));
        case InputFormat::WebP:
            return OrientationInExif(ExifChunk(webpChunks, file));
        case InputFormat::Tiff:
        case InputFormat::Raw:
            return tiff ? tiff->orientation : 1;
        default:
            return 1;
    }
}

}  // namespace varnel
