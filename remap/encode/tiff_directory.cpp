// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/tiff_directory.h"

#include <QtEndian>
#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

constexpr qint64 headerBytes = 8;
constexpr qint64 fieldBytes = 12;
constexpr qint64 inlineBytes = 4;  // a value as short as that stands in the field
constexpr std::uint16_t typeShort = 3;
constexpr std::uint16_t typeLong = 4;
constexpr std::uint16_t typeIfd = 13;

// Of the numbers that values of each type are made of: a fraction is two.
constexpr std::uint8_t numberBytes[] = {0, 1, 1, 2, 4, 4, 1, 1, 2, 4, 4, 4, 8, 4};

// Tags that say where in the file something is: tiles, free space, a JPEG stream, and the EXIF, GPS
// and interoperability directories.
constexpr std::uint16_t places[] = {288, 322, 323, 324,   325,   513,
                                    519, 520, 521, 34665, 34853, 40965};

constexpr std::uint16_t ofResolution[] = {282, 283, 296};

template <class Number>
Number NumberAt(const QByteArray& bytes, qint64 place) {
    return qFromLittleEndian<Number>(bytes.constData() + place);
}

template <class Number>
void Append(QByteArray& bytes, Number number) {
    char text[sizeof(Number)];
    qToLittleEndian<Number>(number, text);
    bytes.append(text, sizeof text);
}

bool IsBigEndian(const QByteArray& file) {
    return file.startsWith('M');
}

// A little-endian value in the file's byte order.
QByteArray InOrder(QByteArray value, std::uint16_t type, bool bigEndian) {
    const qsizetype width = type < std::size(numberBytes) ? numberBytes[type] : 1;
    if (bigEndian && width > 1) {
        for (qsizetype at = 0; at + width <= value.size(); at += width) {
            std::reverse(value.begin() + at, value.begin() + at + width);
        }
    }
    return value;
}

template <class Number>
void Append(QByteArray& bytes, Number number, bool bigEndian) {
    Append(bytes, bigEndian ? qbswap(number) : number);
}

bool Holds(const QByteArray& file, qint64 place, qint64 length) {
    return place >= 0 && length >= 0 && place <= file.size() && length <= file.size() - place;
}

std::optional<TiffField> ReadField(const IfdReader& reader, const IfdEntry& entry) {
    if (!reader.HoldsValues(entry) || std::ranges::find(places, entry.tag) != std::end(places)) {
        return std::nullopt;
    }
    return TiffField{entry.tag, entry.type, static_cast<std::uint32_t>(entry.count),
                     reader.Bytes(entry, std::numeric_limits<std::uint32_t>::max())};
}

bool ReadStrips(const QByteArray& file, TiffDirectory& directory) {
    const auto offsets = directory.Numbers(TiffTag::StripOffsets);
    const auto lengths = directory.Numbers(TiffTag::StripByteCounts);
    if (offsets.empty() || offsets.size() != lengths.size()) {
        return false;
    }
    for (std::size_t n = 0; n < offsets.size(); ++n) {
        if (!Holds(file, offsets[n], lengths[n])) {
            return false;
        }
        directory.strips.push_back(file.mid(offsets[n], lengths[n]));
    }
    return true;
}

std::optional<TiffDirectory> ReadDirectory(const QByteArray& file, std::uint64_t place) {
    const IfdReader reader(file);
    const Ifd ifd = reader.Directory(place);
    if (!ifd.isWhole || ifd.next != 0) {
        return std::nullopt;
    }
    TiffDirectory directory;
    for (const IfdEntry& entry : ifd.entries) {
        std::optional<TiffField> field = ReadField(reader, entry);
        if (!field || (!directory.fields.empty() && field->tag <= directory.fields.back().tag)) {
            return std::nullopt;
        }
        directory.fields.push_back(std::move(*field));
    }
    if (!ReadStrips(file, directory)) {
        return std::nullopt;
    }
    return directory;
}

bool AppendThumbnail(QByteArray& file, TiffDirectory& directory) {
    if (directory.smaller.empty()) {
        return true;
    }
    TiffDirectory& thumbnail = directory.smaller.front();
    std::vector<std::uint32_t> offsets;
    for (const QByteArray& strip : thumbnail.strips) {
        offsets.push_back(static_cast<std::uint32_t>(file.size()));
        file.append(strip);
    }
    thumbnail.SetNumbers(TiffTag::StripOffsets, offsets);
    const auto place = AppendDirectory(file, thumbnail);
    if (place) {
        qToLittleEndian<quint32>(*place, directory.Find(TiffTag::SubIFDs)->value.data());
    }
    return place.has_value();
}

}  // namespace

const TiffField* TiffDirectory::Find(TiffTag tag) const {
    const auto at = std::ranges::find(fields, static_cast<std::uint16_t>(tag), &TiffField::tag);
    return at == fields.end() ? nullptr : &*at;
}

TiffField* TiffDirectory::Find(TiffTag tag) {
    const auto at = std::ranges::find(fields, static_cast<std::uint16_t>(tag), &TiffField::tag);
    return at == fields.end() ? nullptr : &*at;
}

std::vector<std::uint32_t> TiffDirectory::Numbers(TiffTag tag) const {
    const TiffField* const field = Find(tag);
    std::vector<std::uint32_t> numbers;
    if (field == nullptr || (field->type != typeShort && field->type != typeLong)) {
        return numbers;
    }
    const std::int64_t width = TiffTypeBytes(field->type);
    for (qint64 at = 0; at < field->value.size(); at += width) {
        numbers.push_back(width == 2 ? NumberAt<quint16>(field->value, at)
                                     : NumberAt<quint32>(field->value, at));
    }
    return numbers;
}

void TiffDirectory::SetNumbers(TiffTag tag, std::span<const std::uint32_t> numbers) {
    TiffField& field = *Find(tag);
    const bool isShort = std::ranges::all_of(
        numbers, [](std::uint32_t n) { return n <= std::numeric_limits<std::uint16_t>::max(); });
    field.type = isShort ? typeShort : typeLong;
    field.count = static_cast<std::uint32_t>(numbers.size());
    field.value.clear();
    for (const std::uint32_t number : numbers) {
        if (isShort) {
            Append(field.value, static_cast<quint16>(number));
        } else {
            Append(field.value, quint32{number});
        }
    }
}

std::optional<TiffDirectory> ReadTiff(const QByteArray& file) {
    if (!file.startsWith(QByteArrayView("II*\0", 4)) || file.size() < headerBytes) {
        return std::nullopt;
    }
    std::optional<TiffDirectory> whole = ReadDirectory(file, NumberAt<quint32>(file, 4));
    const TiffField* const inner = whole ? whole->Find(TiffTag::SubIFDs) : nullptr;
    if (inner == nullptr) {
        return whole;
    }
    if (inner->count != 1 || (inner->type != typeLong && inner->type != typeIfd)) {
        return std::nullopt;
    }
    std::optional<TiffDirectory> thumbnail =
        ReadDirectory(file, NumberAt<quint32>(inner->value, 0));
    if (!thumbnail || thumbnail->Find(TiffTag::SubIFDs) != nullptr) {
        return std::nullopt;
    }
    whole->smaller.push_back(std::move(*thumbnail));
    return whole;
}

void AddField(TiffDirectory& directory, TiffField field) {
    const auto place = std::ranges::upper_bound(directory.fields, field.tag, {}, &TiffField::tag);
    directory.fields.insert(place, std::move(field));
}

void AddEntries(TiffDirectory& directory, const QByteArray& entries, const QByteArray& block) {
    for (qint64 at = 0; at + fieldBytes <= entries.size(); at += fieldBytes) {
        // As if the block were little-endian.
        QByteArray entry = entries.mid(at, fieldBytes);
        const QByteArray value = entry.last(inlineBytes);
        if (IsBigEndian(block)) {
            std::reverse(entry.begin(), entry.begin() + 2);
            std::reverse(entry.begin() + 2, entry.begin() + 4);
            std::reverse(entry.begin() + 4, entry.begin() + 8);
            std::reverse(entry.begin() + 8, entry.end());
        }
        const TiffField field{NumberAt<quint16>(entry, 0), NumberAt<quint16>(entry, 2),
                              NumberAt<quint32>(entry, 4), value, true};
        const qint64 length = qint64{field.count} * TiffTypeBytes(field.type);
        const bool isHere =
            length <= inlineBytes || Holds(block, NumberAt<quint32>(entry, 8), length);
        if (length == 0 || !isHere) {
            continue;
        }
        TiffField* const present = directory.Find(static_cast<TiffTag>(field.tag));
        if (present == nullptr) {
            AddField(directory, field);
        } else if (std::ranges::find(ofResolution, field.tag) != std::end(ofResolution)) {
            *present = field;
        }
    }
}

QByteArray TiffHeader() {
    return QByteArray("II*\0\0\0\0\0", headerBytes);
}

void SetDirectory(QByteArray& file, std::uint32_t place) {
    qToLittleEndian<quint32>(IsBigEndian(file) ? qbswap(place) : place, file.data() + 4);
}

// Values and directories begin at even places.
std::optional<std::uint32_t> AppendDirectory(QByteArray& file, TiffDirectory directory) {
    if (!AppendThumbnail(file, directory)) {
        return std::nullopt;
    }
    const bool big = IsBigEndian(file);
    QByteArray table;
    Append(table, static_cast<quint16>(directory.fields.size()), big);
    for (const TiffField& field : directory.fields) {
        Append(table, field.tag, big);
        Append(table, field.type, big);
        Append(table, field.count, big);
        const QByteArray value = InOrder(field.value, field.type, big && !field.isEntry);
        if (value.size() <= inlineBytes) {
            table.append(value).append(inlineBytes - value.size(), '\0');
        } else {
            file.append(file.size() % 2, '\0');
            Append(table, static_cast<quint32>(file.size()), big);
            file.append(value);
        }
    }
    Append(table, quint32{0});  // no directory after this one
    file.append(file.size() % 2, '\0');
    const qint64 place = file.size();
    file.append(table);
    if (file.size() > std::numeric_limits<std::uint32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(place);
}

}  // namespace varnel
