// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/header_size.h"

#include <QtEndian>

namespace varnel {

namespace {

// Two numbers of that many bytes, so far behind the mark.
struct SizePlace {
    InputFormat format;
    QByteArrayView mark;  // empty: the file's beginning
    int after;
    int bytes;
    bool bigEndian;
    bool heightFirst;
};

constexpr SizePlace sizePlaces[] = {{InputFormat::Iff, "BMHD", 8, 2, true, false},
                                    {InputFormat::Sgi, "", 6, 2, true, false},
                                    {InputFormat::Dds, "", 12, 4, false, true},
                                    {InputFormat::Jp2, "ihdr", 4, 4, true, true},
                                    {InputFormat::J2k, "", 8, 4, true, false}};

std::int64_t Number(const char* bytes, int count, bool bigEndian) {
    if (count == 2) {
        return bigEndian ? qFromBigEndian<quint16>(bytes) : qFromLittleEndian<quint16>(bytes);
    }
    return bigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
}

// Bytes of the palette that a GIF's flags announce.
int GifPaletteBytes(char flags) {
    return (flags & 0x80) != 0 ? 3 << ((flags & 7) + 1) : 0;
}

// The first frame's: it comes behind the palette and any number of extensions.
std::optional<HeaderSize> GifSize(const PictureFile& file) {
    const QByteArray screen = file.Read(0, 13);
    if (screen.size() < 13) {
        return std::nullopt;
    }
    std::int64_t place = 13 + GifPaletteBytes(screen[10]);
    for (QByteArray block = file.Read(place, 10); block.size() == 10 && block[0] != ',';
         block = file.Read(place, 10)) {
        if (block[0] != '!') {
            return std::nullopt;
        }
        place += 2;
        for (QByteArray length = file.Read(place, 1); !length.isEmpty() && length[0] != '\0';
             length = file.Read(place, 1)) {
            place += 1 + static_cast<unsigned char>(length[0]);
        }
        ++place;
    }
    const QByteArray frame = file.Read(place, 10);
    if (frame.size() < 10) {
        return std::nullopt;
    }
    return HeaderSize{Number(frame.constData() + 5, 2, false),
                      Number(frame.constData() + 7, 2, false)};
}

}  // namespace

std::optional<HeaderSize> HeaderSizeOf(InputFormat format, const PictureFile& file) {
    if (format == InputFormat::Gif) {
        return GifSize(file);
    }
    for (const SizePlace& place : sizePlaces) {
        if (place.format != format) {
            continue;
        }
        constexpr int most = 4096;
        const QByteArray header = file.Read(0, most);
        const qsizetype mark = header.indexOf(place.mark);
        if (mark < 0 || mark + place.after + 2 * place.bytes > header.size()) {
            return std::nullopt;
        }
        const char* const numbers = header.constData() + mark + place.after;
        const std::int64_t first = Number(numbers, place.bytes, place.bigEndian);
        const std::int64_t second = Number(numbers + place.bytes, place.bytes, place.bigEndian);
        return place.heightFirst ? HeaderSize{second, first} : HeaderSize{first, second};
    }
    return std::nullopt;
}

}  // namespace varnel
