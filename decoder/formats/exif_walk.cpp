// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/exif_walk.h"

#include <iterator>

namespace varnel {

namespace {

constexpr std::uint32_t typeLong = 4;

}  // namespace

bool ExifWalk::IsSound() const {
    constexpr std::uint32_t magic = 42;
    return (bigEndian_ || block_.startsWith("II")) && Number(2, 2) == magic;
}

std::int64_t ExifWalk::Find(std::uint32_t directory, std::uint32_t tag) const {
    const std::uint32_t count = directory == 0 ? 0 : Count(directory);
    for (std::uint32_t n = 0; n < count; ++n) {
        if (TagAt(Entry(directory, n)) == tag) {
            return Entry(directory, n);
        }
    }
    return 0;
}

std::uint32_t ExifWalk::Value(std::int64_t entry) const {
    constexpr int widths[] = {0, 1, 0, 2, 4};  // by the type's number
    const std::uint32_t type = Number(entry + 2, 2);
    const bool isOne = entry > 0 && Number(entry + 4, 4) == 1;
    return isOne && type < std::size(widths) ? Number(entry + 8, widths[type]) : 0;
}

std::uint32_t ExifWalk::LongPlace(std::int64_t entry) const {
    const bool isLong = entry > 0 && Number(entry + 2, 2) == typeLong && Number(entry + 4, 4) == 1;
    return isLong ? static_cast<std::uint32_t>(entry + 8) : 0;
}

std::uint32_t ExifWalk::Number(std::int64_t at, int bytes) const {
    std::uint32_t number = 0;
    for (int i = 0; i < bytes && at + bytes <= block_.size(); ++i) {
        const std::int64_t place = bigEndian_ ? at + i : at + bytes - 1 - i;
        number = number << 8 | static_cast<unsigned char>(block_[place]);
    }
    return number;
}

}  // namespace varnel
