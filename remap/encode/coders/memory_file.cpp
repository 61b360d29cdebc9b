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
    if (!error_.isEmpty()) {
        return false;
    }
    if (isInMiddle_) {
        return WriteToSink(bytes, length);
    }
    if (!IsKept(position_, length) || !Reach(end)) {
        return false;
    }
    std::memcpy(bytes_.data() + PlaceOf(position_), bytes, static_cast<std::size_t>(length));
    position_ = end;
    return true;
}

bool MemoryFile::WriteToSink(const void* bytes, qint64 length) {
    if (position_ != Length()) {
        return false;
    }
    if (position_ + length > largest_) {
        return Refuse({ReasonCode::FileTooLarge, largest_});
    }
    if (middleLength_ == 0) {
        middle_ = bytes_.size();
        if (!sink_->Begin() || !sink_->Append(bytes_)) {
            return Refuse(sink_->Error());
        }
    }
    if (!sink_->Append({static_cast<const char*>(bytes), static_cast<qsizetype>(length)})) {
        return Refuse(sink_->Error());
    }
    middleLength_ += length;
    position_ += length;
    return true;
}

bool MemoryFile::Finish() {
    if (!error_.isEmpty() || middleLength_ == 0) {
        return error_.isEmpty();
    }
    const QByteArrayView kept(bytes_);
    return (sink_->Append(kept.sliced(middle_)) && sink_->PutAtStart(kept.first(middle_))) ||
           Refuse(sink_->Error());
}

bool MemoryFile::Refuse(const Reason& reason) {
    error_ = reason;
    return false;
}

bool MemoryFile::IsKept(qint64 from, qint64 length) const {
    return middleLength_ == 0 || from + length <= middle_ || from >= middle_ + middleLength_;
}

// In what is kept.
qint64 MemoryFile::PlaceOf(qint64 position) const {
    return position - (position > middle_ ? middleLength_ : 0);
}

qint64 MemoryFile::Read(void* bytes, qint64 length) {
    const bool isAhead = middleLength_ > 0 && position_ < middle_;
    const qint64 there = std::min<qint64>((isAhead ? middle_ : Length()) - position_, length);
    if (there <= 0 || !IsKept(position_, there)) {
        return 0;
    }
    std::memcpy(bytes, bytes_.constData() + PlaceOf(position_), static_cast<std::size_t>(there));
    position_ += there;
    return there;
}

bool MemoryFile::Seek(qint64 offset, int origin) {
    const qint64 start = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? position_ : Length();
    if (start + offset < 0) {
        return false;
    }
    position_ = start + offset;
    return true;
}

// Makes the file at least so long; what was never written is zero.
bool MemoryFile::Reach(qint64 end) {
    if (end > largest_) {
        return Refuse({ReasonCode::FileTooLarge, largest_});
    }
    const qint64 before = bytes_.size();
    const qint64 length = PlaceOf(end);
    if (length <= before) {
        return true;
    }
    try {
        if (length > bytes_.capacity()) {
            bytes_.reserve(std::max(length, std::min(2 * before, largest_)));
        }
        bytes_.resize(length);
    } catch (const std::bad_alloc&) {
        return Refuse(ReasonCode::NotEnoughMemory);
    }
    if (const qint64 place = PlaceOf(position_); place > before) {
        std::memset(bytes_.data() + before, 0, static_cast<std::size_t>(place - before));
    }
    return true;
}

}  // namespace varnel
