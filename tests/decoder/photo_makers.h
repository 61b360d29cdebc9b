// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Picture files made byte by byte, of kinds that the image library does not write.
#pragma once

#include <FreeImage.h>

#include <QByteArray>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "remap/geometry.h"

namespace varnel::testing {

template <class Number>
void Append(QByteArray& bytes, Number value) {
    value = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&value), sizeof(value));
}

// A Windows or OS/2 bitmap. Its colours have 7 as red; blue is the column; green is the row from
// the bottom where a pixel has 24 or 32 bits, else twice the column (of few colours, modulo their
// number).
struct BmpKind {
    int headerBytes;  // 12, 40, 52, 56, 64, 108 or 124
    int depth;
    quint32 coding;  // as in the file: 0 plain, 1 and 2 run lengths, 3 masks
    bool topFirst = false;

    RGBQUAD Colour(int x, int y) const {
        const int column = depth > 8 ? x : x % (1 << depth);
        const int row = depth > 8 ? y : 2 * column;
        return {static_cast<BYTE>(column), static_cast<BYTE>(row), 7, 0};
    }
};

inline QByteArray BmpRow(const BmpKind& kind, int width, int y) {
    QByteArray row;
    int filled = 0;
    for (int x = 0; x < width; ++x) {
        const RGBQUAD c = kind.Colour(x, y);
        if (kind.coding == 1 || kind.coding == 2) {
            row.append('\1');  // a run of one
            row.append(static_cast<char>(kind.coding == 1 ? c.rgbBlue : c.rgbBlue << 4));
        } else if (kind.depth > 8) {
            const char pixel[] = {static_cast<char>(c.rgbBlue), static_cast<char>(c.rgbGreen), 7,
                                  0};
            row.append(pixel, kind.depth / 8);
        } else {
            if (filled % 8 == 0) {
                row.append('\0');
            }
            filled += kind.depth;
            row.back() = static_cast<char>(row.back() | c.rgbBlue << (7 - (filled - 1) % 8));
        }
    }
    if (kind.coding == 1 || kind.coding == 2) {
        return row.append("\0\0", 2);  // the row's end, after the last row, too
    }
    return row.append(QByteArray((4 - row.size() % 4) % 4, '\0'));
}

inline QByteArray BmpHead(const BmpKind& kind, PixelSize size) {
    QByteArray head;
    if (kind.headerBytes == 12) {
        for (const int value : {size.width, size.height, 1, kind.depth}) {
            Append(head, static_cast<quint16>(value));
        }
    } else {
        Append(head, size.width);
        Append(head, kind.topFirst ? -size.height : size.height);
        Append(head, static_cast<quint32>(kind.depth << 16 | 1));
        Append(head, kind.coding);
        for (const quint32 value : {0U, 5000U, 6000U, 0U, 0U}) {  // resolution, colours
            Append(head, value);
        }
        if (kind.headerBytes != 64 && kind.coding == 3) {
            for (const quint32 mask : {0xFF0000U, 0xFF00U, 0xFFU}) {
                Append(head, mask);
            }
        }
    }
    head.append(QByteArray(std::max<qsizetype>(kind.headerBytes - 4 - head.size(), 0), '\0'));
    for (int i = 0; kind.depth <= 8 && i < 1 << kind.depth; ++i) {
        const RGBQUAD c = kind.Colour(i, 0);
        const char entry[] = {static_cast<char>(c.rgbBlue), static_cast<char>(c.rgbGreen), 7, 0};
        head.append(entry, kind.headerBytes == 12 ? 3 : 4);
    }
    return head;
}

inline QByteArray Bmp(const BmpKind& kind, PixelSize size) {
    const QByteArray head = BmpHead(kind, size);
    QByteArray bytes("BM\0\0\0\0\0\0\0\0", 10);
    Append(bytes, static_cast<quint32>(18 + head.size()));
    Append(bytes, static_cast<quint32>(kind.headerBytes));
    bytes += head;
    for (int i = 0; i < size.height; ++i) {
        bytes += BmpRow(kind, size.width, kind.topFirst ? size.height - 1 - i : i);
    }
    return kind.coding == 1 || kind.coding == 2 ? bytes.append("\0\1", 2) : bytes;
}

// A little-endian TIFF of one strip, its directory in front.
struct TiffTag {
    quint16 tag;
    quint16 type;  // 1 byte, 2 text, 3 short, 4 long, 5 fraction, 10 signed fraction
    std::vector<qint32> values;

    int Bytes() const { return type <= 2 ? 1 : type == 3 ? 2 : 4; }
    quint32 Count() const {
        return static_cast<quint32>(type == 5 || type == 10 ? values.size() / 2 : values.size());
    }
    QByteArray Data() const {
        QByteArray data;
        for (const qint32 value : values) {
            const qint32 little = qToLittleEndian(value);
            data.append(reinterpret_cast<const char*>(&little), Bytes());
        }
        return data;
    }
};

inline QByteArray Tiff(std::vector<TiffTag> tags, const QByteArray& pixels) {
    constexpr quint16 stripOffset = 273;
    tags.push_back({279, 4, {static_cast<qint32>(pixels.size())}});
    tags.push_back({stripOffset, 4, {0}});
    std::ranges::sort(tags, {}, &TiffTag::tag);
    const auto after = static_cast<quint32>(8 + 2 + 12 * tags.size() + 4);
    quint32 strip = after;
    for (const TiffTag& tag : tags) {
        const qsizetype size = tag.Data().size();
        strip += static_cast<quint32>(size > 4 ? size + size % 2 : 0);
    }
    QByteArray bytes("II\x2a\0\x08\0\0\0", 8), outside;
    Append(bytes, static_cast<quint16>(tags.size()));
    for (TiffTag& tag : tags) {
        if (tag.tag == stripOffset) {
            tag.values = {static_cast<qint32>(strip)};
        }
        const QByteArray data = tag.Data();
        Append(bytes, tag.tag);
        Append(bytes, tag.type);
        Append(bytes, tag.Count());
        if (data.size() > 4) {
            Append(bytes, static_cast<quint32>(after + outside.size()));
            outside += data + QByteArray(data.size() % 2, '\0');
        } else {
            bytes += data.leftJustified(4, '\0');
        }
    }
    return bytes + QByteArray(4, '\0') + outside + pixels;
}

// A raw photo, 16 bits a sample, brighter to the right; three samples a pixel or a colour mosaic.
inline QByteArray Dng(PixelSize size, bool mosaic, int orientation) {
    QByteArray pixels;
    for (int i = 0; i < size.width * size.height * (mosaic ? 1 : 3); ++i) {
        const int x = (mosaic ? i : i / 3) % size.width;
        Append(pixels, static_cast<quint16>(x * 60000 / size.width));
    }
    std::vector<TiffTag> tags{
        {254, 4, {0}},
        {256, 4, {size.width}},
        {257, 4, {size.height}},
        {258, 3, mosaic ? std::vector<qint32>{16} : std::vector<qint32>{16, 16, 16}},
        {259, 3, {1}},
        {262, 3, {mosaic ? 32803 : 34892}},
        {271, 2, {'V', 'a', 'r', 'n', 'e', 'l', 0}},
        {272, 2, {'T', 'e', 's', 't', 0}},
        {274, 3, {orientation}},
        {277, 3, {mosaic ? 1 : 3}},
        {278, 4, {size.height}},
        {284, 3, {1}},
        {50706, 1, {1, 4, 0, 0}},
        {50707, 1, {1, 1, 0, 0}},
        {50708, 2, {'V', ' ', 'T', 'e', 's', 't', 0}},
        {50717, 4, {65535}},
        {50721, 10, {16, 10, -8, 10, -2, 10, -10, 10, 19, 10, 0, 10, -1, 10, 1, 10, 6, 10}},
        {50728, 5, {1, 2, 1, 1, 6, 10}},
        {50778, 3, {21}}};
    if (mosaic) {
        tags.push_back({33421, 3, {2, 2}});
        tags.push_back({33422, 1, {0, 1, 1, 2}});
    }
    return Tiff(tags, pixels);
}

// Frame and scan headers of a JPEG with hardly any data. 0xC0: baseline, 0xC2: progressive.
inline QByteArray JpegHead(int frame, int side) {
    QByteArray bytes("\xFF\xD8\xFF", 3);
    bytes.append(static_cast<char>(frame));
    bytes.append("\0\x0B\x08", 3);
    for (int i = 0; i < 2; ++i) {
        bytes.append(static_cast<char>(side >> 8)).append(static_cast<char>(side));
    }
    bytes.append("\1\1\x11\0\xFF\xDA\0\x08\1\1\0\0", 12);
    bytes.append(frame == 0xC0 ? '\x3F' : '\0').append(1001, '\0');
    return bytes.append("\xFF\xD9", 2);
}

inline QByteArray PngHead(int side) {
    QByteArray bytes("\x89PNG\r\n\x1a\n", 8);
    const auto chunk = [&](QByteArray contents) {  // name and data
        QByteArray length(4, '\0'), sum(4, '\0');
        qToBigEndian(static_cast<quint32>(contents.size() - 4), length.data());
        qToBigEndian(FreeImage_ZLibCRC32(0, reinterpret_cast<BYTE*>(contents.data()),
                                         static_cast<DWORD>(contents.size())),
                     sum.data());
        bytes += length + contents + sum;
    };
    QByteArray header("IHDR\0\0\0\0\0\0\0\0\x08\x02\0\0\0", 17);
    qToBigEndian(side, header.data() + 4);
    qToBigEndian(side, header.data() + 8);
    chunk(header);
    chunk(QByteArray("IDAT\x78\x9c\x63\0\0\0\1\0\1", 13));
    chunk("IEND");
    return bytes;
}

}  // namespace varnel::testing
