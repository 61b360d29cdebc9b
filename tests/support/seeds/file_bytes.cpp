// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/seeds/file_bytes.h"

#include <algorithm>

namespace varnel::testing {

QByteArray Number(std::uint64_t value, int bytes, Order order) {
    QByteArray text;
    for (int i = 0; i < bytes; ++i) {
        const int shift = 8 * (order == Order::Little ? i : bytes - 1 - i);
        text.append(static_cast<char>(shift < 64 ? value >> shift & 0xff : 0));
    }
    return text;
}

QByteArray Numbers(std::initializer_list<std::int64_t> values, int bytes, Order order) {
    QByteArray text;
    for (const std::int64_t value : values) {
        text += Number(static_cast<std::uint64_t>(value), bytes, order);
    }
    return text;
}

QByteArray PatternBytes(int count, int highest) {
    QByteArray bytes(count, '\0');
    for (int i = 0; i < count; ++i) {
        bytes[i] = static_cast<char>((i * 7 + i / 61 * 3) % (highest + 1));
    }
    return bytes;
}

std::uint32_t PngChecksum(const QByteArray& typeAndData) {
    std::uint32_t sum = 0xffffffffU;
    for (const char byte : typeAndData) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320U : 0);
        }
    }
    return ~sum;
}

QByteArray PngChunk(const char* type, const QByteArray& data) {
    const QByteArray body = type + data;
    return Number(data.size(), 4, Order::Big) + body + Number(PngChecksum(body), 4, Order::Big);
}

QByteArray Zlib(const QByteArray& data) {
    return qCompress(data).mid(4);  // without the length that Qt puts before it
}

TiffBytes::TiffBytes(Order order)
    : order_(order),
      bytes_(QByteArray(order == Order::Little ? "II" : "MM") + Number(42, 2, order) +
             Number(0, 4)) {}

std::uint32_t TiffBytes::Data(const QByteArray& data) {
    const auto place = static_cast<std::uint32_t>(bytes_.size());
    bytes_ += data;
    bytes_.append(bytes_.size() % 2, '\0');
    return place;
}

std::uint32_t TiffBytes::Directory(std::vector<TiffField> fields, std::uint32_t next) {
    std::sort(fields.begin(), fields.end(),
              [](const TiffField& a, const TiffField& b) { return a.tag < b.tag; });
    const auto place = static_cast<std::uint32_t>(bytes_.size());
    const auto behind = static_cast<std::uint32_t>(place + 2 + 12 * fields.size() + 4);
    QByteArray entries;
    QByteArray values;  // those that do not fit into their entries
    for (const TiffField& field : fields) {
        const bool fraction =
            field.type == TiffType::Fraction || field.type == TiffType::SignedFraction;
        const int width = field.type == TiffType::Byte ? 1 : field.type == TiffType::Short ? 2 : 4;
        QByteArray data = field.data;
        for (const std::uint32_t value : field.values) {
            data += Number(value, width, order_);
        }
        const auto count =
            field.values.empty() ? data.size() : field.values.size() / (fraction ? 2 : 1);
        entries += Number(field.tag, 2, order_) +
                   Number(static_cast<std::uint64_t>(field.type), 2, order_) +
                   Number(count, 4, order_);
        if (data.size() <= 4) {
            entries += data.leftJustified(4, '\0');
        } else {
            entries += Number(behind + values.size(), 4, order_);
            values += data;
            values.append(values.size() % 2, '\0');
        }
    }
    return Data(Number(fields.size(), 2, order_) + entries + Number(next, 4, order_) + values);
}

QByteArray TiffBytes::Finish(std::uint32_t firstDirectory) const {
    return QByteArray(bytes_).replace(4, 4, Number(firstDirectory, 4, order_));
}

QByteArray StripTiff(std::vector<TiffField> fields, const QByteArray& pixels) {
    fields.push_back({279, TiffType::Long, {static_cast<std::uint32_t>(pixels.size())}});
    fields.push_back({273, TiffType::Long, {0}});
    QByteArray file;
    for (int pass = 0; pass < 2; ++pass) {  // the first one tells where the pixels begin
        fields.back().values = {static_cast<std::uint32_t>(file.size())};
        TiffBytes tiff(Order::Little);
        const std::uint32_t place = tiff.Directory(fields);
        file = tiff.Finish(place);
    }
    return file + pixels;
}

QByteArray ImageResource(int number, const QByteArray& data) {
    return "8BIM" + Numbers({number, 0}, 2, Order::Big) + Number(data.size(), 4, Order::Big) +
           data + QByteArray(data.size() % 2, '\0');
}

}  // namespace varnel::testing
