// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/ifd_reader.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varnel {

namespace {

constexpr std::array<std::int64_t, 19> typeBytes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                 8, 4, 8, 4, 0, 0, 8, 8, 8};
constexpr std::uint16_t typeByte = 1;
constexpr std::uint16_t typeShort = 3;
constexpr std::uint16_t typeLong = 4;

constexpr std::uint64_t mostEntries = 65535;

IfdReader::Source Over(QByteArrayView block) {
    return {block.size(), [block](std::int64_t place, std::int64_t most) {
                const std::int64_t count = std::min<std::int64_t>(most, block.size() - place);
                return place < 0 || count <= 0 ? QByteArray()
                                               : block.sliced(place, count).toByteArray();
            }};
}

}  // namespace

std::int64_t TiffTypeBytes(std::uint16_t type) {
    return type < typeBytes.size() ? typeBytes[type] : 0;
}

const IfdEntry* Ifd::Find(std::uint16_t tag) const {
    const auto entry = std::ranges::find(entries, tag, &IfdEntry::tag);
    return entry == entries.end() ? nullptr : &*entry;
}

IfdReader::IfdReader(Source source) : source_(std::move(source)) {
    constexpr std::uint64_t magic = 42;
    constexpr std::uint64_t wideMagic = 43;
    const QByteArray head = source_.read(0, 16);
    isBigEndian_ = head.startsWith("MM");
    if (head.size() < 8 || (!isBigEndian_ && !head.startsWith("II"))) {
        return;
    }
    isWide_ = NumberAt(head, 2, 2) == wideMagic && head.size() == 16;
    isTiff_ = NumberAt(head, 2, 2) == magic || isWide_;
    first_ = isWide_ ? NumberAt(head, 8, 8) : NumberAt(head, 4, 4);
}

IfdReader::IfdReader(QByteArrayView block) : IfdReader(Over(block)) {}

Ifd IfdReader::Directory(std::uint64_t place) const {
    const int countBytes = isWide_ ? 8 : 2;
    const int linkBytes = isWide_ ? 8 : 4;
    if (place == 0 || !Holds(place, static_cast<std::uint64_t>(countBytes))) {
        return {};
    }
    const auto start = static_cast<std::int64_t>(place) + countBytes;
    const std::uint64_t count =
        NumberAt(source_.read(start - countBytes, countBytes), 0, countBytes);
    if (count > mostEntries) {
        return {true, {}, 0};
    }
    const std::int64_t entryTotal = static_cast<std::int64_t>(count) * EntryBytes();
    const QByteArray bytes = source_.read(start, entryTotal + linkBytes);
    return {
        bytes.size() >= entryTotal,
        Entries(QByteArrayView(bytes).first(std::min<qsizetype>(bytes.size(), entryTotal)), start),
        NumberAt(bytes, entryTotal, linkBytes)};
}

std::vector<IfdEntry> IfdReader::Entries(QByteArrayView bytes, std::int64_t place) const {
    const int fieldBytes = isWide_ ? 8 : 4;
    std::vector<IfdEntry> entries;
    for (std::int64_t at = 0; at < bytes.size(); at += EntryBytes()) {
        IfdEntry entry{static_cast<std::uint16_t>(NumberAt(bytes, at, 2)),
                       static_cast<std::uint16_t>(NumberAt(bytes, at + 2, 2)),
                       NumberAt(bytes, at + 4, fieldBytes), place + at, 0};
        const std::int64_t value = at + 4 + fieldBytes;
        const std::int64_t size = TiffTypeBytes(entry.type);
        const bool isInside =
            size == 0 || entry.count <= static_cast<std::uint64_t>(fieldBytes / size);
        if (!isInside && at + EntryBytes() > bytes.size()) {
            break;  // where its values are is missing
        }
        entry.valuePlace = isInside ? static_cast<std::uint64_t>(place + value)
                                    : NumberAt(bytes, value, fieldBytes);
        entries.push_back(entry);
    }
    return entries;
}

bool IfdReader::Holds(std::uint64_t place, std::uint64_t bytes) const {
    const auto length = static_cast<std::uint64_t>(source_.length);
    return place <= length && bytes <= length - place;
}

bool IfdReader::HoldsValues(const IfdEntry& entry) const {
    return TiffTypeBytes(entry.type) > 0 && Holds(entry.valuePlace, ValueBytes(entry));
}

QByteArray IfdReader::Bytes(const IfdEntry& entry, std::int64_t most) const {
    const std::uint64_t wanted =
        std::min(ValueBytes(entry), static_cast<std::uint64_t>(std::max<std::int64_t>(most, 0)));
    return Holds(entry.valuePlace, 0) ? source_.read(static_cast<std::int64_t>(entry.valuePlace),
                                                     static_cast<std::int64_t>(wanted))
                                      : QByteArray();
}

std::vector<std::uint64_t> IfdReader::Numbers(const IfdEntry& entry, std::int64_t most) const {
    const std::int64_t size = TiffTypeBytes(entry.type);
    IfdEntry wanted = entry;
    wanted.count =
        std::min(entry.count, static_cast<std::uint64_t>(std::max<std::int64_t>(most, 0)));
    const QByteArray bytes = Bytes(wanted, source_.length);
    std::vector<std::uint64_t> numbers;
    for (std::int64_t at = 0; size > 0 && at + size <= bytes.size(); at += size) {
        numbers.push_back(NumberAt(bytes, at, size));
    }
    return numbers;
}

std::uint32_t IfdReader::Number(const IfdEntry* entry) const {
    if (entry == nullptr || entry->count != 1 ||
        (entry->type != typeByte && entry->type != typeShort && entry->type != typeLong)) {
        return 0;
    }
    const std::vector<std::uint64_t> numbers = Numbers(*entry, 1);
    return numbers.empty() ? 0 : static_cast<std::uint32_t>(numbers.front());
}

std::uint32_t IfdReader::LongPlace(const IfdEntry* entry) const {
    const bool isLong = entry != nullptr && entry->type == typeLong && entry->count == 1;
    return isLong ? static_cast<std::uint32_t>(entry->valuePlace) : 0;
}

// 0 unless all of its bytes are there.
std::uint64_t IfdReader::NumberAt(QByteArrayView bytes, std::int64_t at, std::int64_t size) const {
    std::uint64_t number = 0;
    for (std::int64_t i = 0; i < size && at + size <= bytes.size(); ++i) {
        const std::int64_t from = isBigEndian_ ? at + i : at + size - 1 - i;
        number = number << 8 | static_cast<unsigned char>(bytes[from]);
    }
    return number;
}

// No more than that can be there is as good as any larger number.
std::uint64_t IfdReader::ValueBytes(const IfdEntry& entry) const {
    const auto tooMany = static_cast<std::uint64_t>(source_.length) + 1;
    return std::min(entry.count, tooMany) * static_cast<std::uint64_t>(TiffTypeBytes(entry.type));
}

}  // namespace varnel
