// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/photo_stream.h"

#include <unistd.h>

namespace varnel {

namespace {

// False when they cannot be had as a whole: the stream of the file itself then finds out why.
bool ReadAll(int file, std::vector<char>& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            pread(file, bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
        if (count <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(count);
    }
    return true;
}

}  // namespace

FileHandle PhotoStream::Open(Descriptor file) {
    const off_t length = lseek(file.Get(), 0, SEEK_END);  // of its state the decoder may not ask
    if (length > 0 && static_cast<std::size_t>(length) <= mostInMemory) {
        bytes_.resize(static_cast<std::size_t>(length));
        if (ReadAll(file.Get(), bytes_)) {
            return FileHandle(fmemopen(bytes_.data(), bytes_.size(), "rb"));
        }
    }
    lseek(file.Get(), 0, SEEK_SET);
    return FileHandle(fdopen(file.Release(), "rb"));
}

}  // namespace varnel
