// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/picture_file.h"

#include <algorithm>

namespace varnel {

namespace {

std::int64_t LengthOf(std::FILE* file) {
    return std::fseek(file, 0, SEEK_END) == 0 ? std::max<std::int64_t>(std::ftell(file), 0) : 0;
}

}  // namespace

PictureFile::PictureFile(std::FILE* file) : file_(file), length_(LengthOf(file)) {}

QByteArray PictureFile::Read(std::int64_t offset, std::int64_t most) const {
    const std::int64_t count = std::min(most, length_ - offset);
    if (offset < 0 || count <= 0 || std::fseek(file_, offset, SEEK_SET) != 0) {
        return {};
    }
    QByteArray bytes(count, Qt::Uninitialized);
    bytes.truncate(static_cast<qsizetype>(std::fread(bytes.data(), 1, bytes.size(), file_)));
    return bytes;
}

unsigned PictureFile::Fill(void* buffer, unsigned size, unsigned count) const {
    const std::int64_t start = replaced_.empty() ? 0 : std::ftell(file_);
    const std::size_t items = std::fread(buffer, size, count, file_);
    const std::int64_t end = start + static_cast<std::int64_t>(items * size);
    for (const Replaced& replaced : replaced_) {
        if (replaced.place >= start && replaced.place < end) {
            static_cast<char*>(buffer)[replaced.place - start] = replaced.byte;
        }
    }
    return static_cast<unsigned>(items);
}

}  // namespace varnel
