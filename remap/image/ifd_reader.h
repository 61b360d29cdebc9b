// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Directories of TIFF files (the variant with offsets of eight bytes as well) and of EXIF blocks,
// which are built like them. Any bytes may be given: what lies beyond their end is never read and
// counts as missing. Throws nothing but std::bad_alloc.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <cstdint>
#include <functional>
#include <vector>

namespace varnel {

// Bytes of one value by the number of its type, 0 for numbers that mean nothing.
std::int64_t TiffTypeBytes(std::uint16_t type);

struct IfdEntry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint64_t count = 0;       // of values, as the entry states it
    std::int64_t place = 0;        // of the entry
    std::uint64_t valuePlace = 0;  // in the entry itself or anywhere: perhaps beyond the end
};

struct Ifd {
    bool isWhole = false;  // false where the bytes end before its last entry does
    std::vector<IfdEntry> entries;
    std::uint64_t next = 0;  // place of the directory that follows, 0 for none

    // The first with that tag; null when there is none.
    const IfdEntry* Find(std::uint16_t tag) const;
};

// Places are bytes from the header.
class IfdReader {
  public:
    struct Source {
        std::int64_t length = 0;
        // The bytes from a place on, fewer where they end.
        std::function<QByteArray(std::int64_t place, std::int64_t most)> read;
    };
    explicit IfdReader(Source source);
    // The block has to outlive the reader.
    explicit IfdReader(QByteArrayView block);

    // Whether there is a header; without one the other answers mean nothing.
    bool IsTiff() const { return isTiff_; }
    bool IsBigEndian() const { return isBigEndian_; }
    std::int64_t EntryBytes() const { return isWide_ ? 20 : 12; }

    // The place of the first directory, 0 for none.
    std::uint64_t First() const { return first_; }
    // The directory there, with as many entries as the bytes hold; what is missing of the last one
    // reads as 0. One of more entries than 65535 is whole and has none.
    Ifd Directory(std::uint64_t place) const;
    // Entries on their own, as they stand in a directory at that place.
    std::vector<IfdEntry> Entries(QByteArrayView bytes, std::int64_t place = 0) const;

    // Whether that many bytes are there.
    bool Holds(std::uint64_t place, std::uint64_t bytes) const;
    // Whether the type is known and all values are there.
    bool HoldsValues(const IfdEntry& entry) const;
    // Values as they stand, no more bytes than that.
    QByteArray Bytes(const IfdEntry& entry, std::int64_t most) const;
    // As many whole values as are there and wanted, as unsigned numbers; a fraction is one number
    // of eight bytes.
    std::vector<std::uint64_t> Numbers(const IfdEntry& entry, std::int64_t most) const;
    // The number of an entry that has a single unsigned whole one of at most four bytes; 0 for
    // others and for null.
    std::uint32_t Number(const IfdEntry* entry) const;
    // Where a single number of four bytes stands in its entry; 0 for others and for null.
    std::uint32_t LongPlace(const IfdEntry* entry) const;

  private:
    std::uint64_t NumberAt(QByteArrayView bytes, std::int64_t at, std::int64_t size) const;
    std::uint64_t ValueBytes(const IfdEntry& entry) const;

    Source source_;
    bool isTiff_ = false;
    bool isBigEndian_ = false;
    bool isWide_ = false;  // the variant with offsets of eight bytes
    std::uint64_t first_ = 0;
};

}  // namespace varnel
