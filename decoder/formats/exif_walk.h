// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// An EXIF block's directories: a TIFF header with entries of 12 bytes. For looking at single
// numbers in any bytes, hostile ones, too.
#pragma once

#include <QByteArrayView>
#include <cstdint>

namespace varnel {

// All places are bytes from the block's start; what lies beyond its end reads as 0.
class ExifWalk {
  public:
    explicit ExifWalk(QByteArrayView block) : block_(block), bigEndian_(block.startsWith("MM")) {}

    // Whether the block begins as one.
    bool IsSound() const;
    std::uint32_t FirstDirectory() const { return Number(4, 4); }
    std::uint32_t NextDirectory(std::uint32_t directory) const {
        return Number(Entry(directory, Count(directory)), 4);
    }
    std::uint32_t Count(std::uint32_t directory) const { return Number(directory, 2); }
    std::int64_t Entry(std::uint32_t directory, std::uint32_t n) const {
        return std::int64_t{directory} + 2 + std::int64_t{n} * entryBytes;
    }
    std::uint16_t TagAt(std::int64_t entry) const {
        return static_cast<std::uint16_t>(Number(entry, 2));
    }
    // The first entry with that tag, 0 for none.
    std::int64_t Find(std::uint32_t directory, std::uint32_t tag) const;
    // The number of an entry that has a single one, of 1, 2 or 4 bytes; 0 for others.
    std::uint32_t Value(std::int64_t entry) const;
    // Where a single number of four bytes is; 0 for others and for entry 0.
    std::uint32_t LongPlace(std::int64_t entry) const;

    static constexpr int entryBytes = 12;

  private:
    std::uint32_t Number(std::int64_t at, int bytes) const;

    QByteArrayView block_;
    bool bigEndian_;
};

}  // namespace varnel
