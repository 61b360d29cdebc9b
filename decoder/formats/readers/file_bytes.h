// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// All bytes of an open file, for libraries that want them in memory. Throws std::bad_alloc.
#pragma once

#include <QByteArray>
#include <QFile>
#include <cstdio>

namespace varnel {

// Mapped where that can be done. The file stays the caller's.
class FileBytes {
  public:
    explicit FileBytes(std::FILE* file);

    // Null when they cannot be read.
    const uchar* Bytes() const { return bytes_; }
    qint64 Length() const { return length_; }

  private:
    QFile file_;
    QByteArray read_;
    const uchar* bytes_ = nullptr;
    qint64 length_ = 0;
};

}  // namespace varnel
