// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/memory_file.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>

namespace varnel {

bool MemoryFile::Write(const void* bytes, qint64 length) {
    const qint64 end = position_ + length;
    if (!error_.isEmpty() || !Reach(end)) {
        return false;
    }
    std::memcpy(bytes_.data() + position_, bytes, static_cast<std::size_t>(length));
    position_ = end;
    return true;
}

qint64 MemoryFile::Read(void* bytes, qint64 length) {
    const qint64 there = std::min<qint64>(bytes_.size() - position_, length);
    if (there <= 0) {
        return 0;
    }
    std::memcpy(bytes, bytes_.constData() + position_, static_cast<std::size_t>(there));
    position_ += there;
    return there;
}

bool MemoryFile::Seek(qint64 offset, int origin) {
    const qint64 start = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? position_ : bytes_.size();
    if (start + offset < 0) {
        return false;
    }
    position_ = start + offset;
    return true;
}

// Makes the file at least so long; what was never written is zero.
bool MemoryFile::Reach(qint64 end) {
    if (end > largest_) {
        error_ = {ReasonCode::FileTooLarge, largest_};
        return false;
    }
    const qint64 before = bytes_.size();
    if (end <= before) {
        return true;
    }
    try {
        if (end > bytes_.capacity()) {
            bytes_.reserve(std::max(end, std::min(2 * before, largest_)));
        }
        bytes_.resize(end);
    } catch (const std::bad_alloc&) {
        error_ = ReasonCode::NotEnoughMemory;
        return false;
    }
    if (position_ > before) {
        std::memset(bytes_.data() + before, 0, static_cast<std::size_t>(position_ - before));
    }
    return true;
}

}  // namespace varnel
