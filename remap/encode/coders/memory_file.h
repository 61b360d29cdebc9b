// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A file in memory that a library writes; a long middle part may go elsewhere and is not kept then.
// Throws nothing, because nothing may be thrown through the libraries, which are C: what fails is
// remembered, and so is every write after it refused.
#pragma once

#include <QByteArray>

#include "base/reason.h"
#include "files/file_sink.h"

namespace varnel {

class MemoryFile {
  public:
    // Not longer than so many bytes.
    explicit MemoryFile(qint64 largest, FileSink* sink = nullptr)
        : largest_(largest), sink_(sink) {}

    // With a sink: what is appended from now on goes there, and all that is kept before it; it
    // cannot be read or written again.
    void BeginMiddle() { isInMiddle_ = sink_ != nullptr; }
    // What is written from now on is kept.
    void EndMiddle() { isInMiddle_ = false; }
    // With a sink: the rest goes there, and the start once more, as it is by now. To be called
    // last.
    bool Finish();

    bool Write(const void* bytes, qint64 length);
    // The number of bytes that were read; none of those that are not kept.
    qint64 Read(void* bytes, qint64 length);
    // By SEEK_SET, SEEK_CUR or SEEK_END.
    bool Seek(qint64 offset, int origin);
    qint64 Position() const { return position_; }
    // Bytes, those that are not kept included.
    qint64 Length() const { return bytes_.size() + middleLength_; }

    const Reason& Error() const { return error_; }
    // Those that are kept.
    QByteArray& Bytes() { return bytes_; }

  private:
    bool Reach(qint64 end);
    bool WriteToSink(const void* bytes, qint64 length);
    bool Refuse(const Reason& reason);
    bool IsKept(qint64 from, qint64 length) const;
    qint64 PlaceOf(qint64 position) const;

    const qint64 largest_;
    FileSink* const sink_;
    QByteArray bytes_;  // without the middle
    qint64 position_ = 0;
    qint64 middle_ = 0;  // where it begins
    qint64 middleLength_ = 0;
    bool isInMiddle_ = false;
    Reason error_;
};

}  // namespace varnel
