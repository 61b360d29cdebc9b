// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pieces of picture files that tests write by hand.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace varnel::testing {

enum class Order { Little, Big };

// A number of that many bytes; those that do not fit are dropped.
QByteArray Number(std::uint64_t value, int bytes, Order order = Order::Little);
// One after the other, all of that many bytes.
QByteArray Numbers(std::initializer_list<std::int64_t> values, int bytes,
                   Order order = Order::Little);

// Bytes up to the highest one that repeat with no short period.
QByteArray PatternBytes(int count, int highest = 255);

// A PNG chunk with its checksum.
QByteArray PngChunk(const char* type, const QByteArray& data);
std::uint32_t PngChecksum(const QByteArray& typeAndData);
// A zlib stream, as PNG and TIFF hold it.
QByteArray Zlib(const QByteArray& data);

// A directory's entry. Values are numbers of the type (two for each fraction).
enum class TiffType { Byte = 1, Text, Short, Long, Fraction, Undefined = 7, SignedFraction = 10 };
struct TiffField {
    int tag;
    TiffType type;
    std::vector<std::uint32_t> values;
    QByteArray data = {};  // for Text and Undefined
};

// A TIFF structure: photos, raw photos and EXIF blocks.
class TiffBytes {
  public:
    explicit TiffBytes(Order order);

    // Appends data; returns its place.
    std::uint32_t Data(const QByteArray& data);
    // Appends a directory; returns its place. The one after it must be there already.
    std::uint32_t Directory(std::vector<TiffField> fields, std::uint32_t next = 0);
    // The whole with the first directory at that place.
    QByteArray Finish(std::uint32_t firstDirectory) const;

  private:
    Order order_;
    QByteArray bytes_;
};

// A little-endian TIFF file of one strip, its directory in front of the pixels.
QByteArray StripTiff(std::vector<TiffField> fields, const QByteArray& pixels);

// What Photoshop calls an image resource: in JPEG and PSD files, IPTC has the number 1028.
QByteArray ImageResource(int number, const QByteArray& data);

}  // namespace varnel::testing
