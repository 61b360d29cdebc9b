// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A photo's file as the decoder reads it. Throws std::bad_alloc only.
#pragma once

#include <vector>

#include "decoder/formats/picture_file.h"
#include "decoder/process/descriptor.h"

namespace varnel {

// Several readers go to the start of each photo and through it, in pieces of a few thousand bytes,
// and each system call passes the filter. Small files are read once, into memory that is kept for
// the next one.
class PhotoStream {
  public:
    static constexpr std::size_t mostInMemory = 1 << 20;  // bytes

    // From the start on. Null when the system has no stream for it. The last one has to be closed.
    FileHandle Open(Descriptor file);

  private:
    std::vector<char> bytes_;
};

}  // namespace varnel
