// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A file in memory that a library writes. Throws nothing, because nothing may be thrown through the
// libraries, which are C: what fails is remembered, and so is every write after it refused.
#pragma once

#include <QByteArray>

#include "base/reason.h"

namespace varnel {

class MemoryFile {
  public:
    // Not longer than so many bytes.
    explicit MemoryFile(qint64 largest) : largest_(largest) {}

    bool Write(const void* bytes, qint64 length);
    // The number of bytes that were read.
    qint64 Read(void* bytes, qint64 length);
    // By SEEK_SET, SEEK_CUR or SEEK_END.
    bool Seek(qint64 offset, int origin);
    qint64 Position() const { return position_; }

    const Reason& Error() const { return error_; }
    QByteArray& Bytes() { return bytes_; }

  private:
    bool Reach(qint64 end);

    const qint64 largest_;
    QByteArray bytes_;
    qint64 position_ = 0;
    Reason error_;
};

}  // namespace varnel
