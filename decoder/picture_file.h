// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A photo's open file, read by place. Nothing here opens a file: the process that decodes may not.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <cstdio>

#include "remap/bitmap.h"

namespace varnel {

class PictureFile {
  public:
    // The file stays the caller's.
    explicit PictureFile(std::FILE* file);

    std::int64_t Length() const { return length_; }
    // The bytes from that place on, fewer where the file ends.
    QByteArray Read(std::int64_t offset, std::int64_t most) const;

    // By the contents, never by a name. FIF_UNKNOWN when no reader wants the file.
    FREE_IMAGE_FORMAT Format() const;
    // Empty when the library refuses. May throw whatever its readers throw.
    BitmapHandle Load(FREE_IMAGE_FORMAT format, int flags) const;

  private:
    std::FILE* file_;
    std::int64_t length_;
};

}  // namespace varnel
