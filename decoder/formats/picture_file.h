// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A photo's open file, read by place. Nothing here opens a file: the process that decodes may not.
// Reading throws std::bad_alloc.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <vector>

namespace varnel {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
// The only owner of an open file; closes it.
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

class PictureFile {
  public:
    // The file stays the caller's.
    explicit PictureFile(std::FILE* file);

    std::int64_t Length() const { return length_; }
    // The bytes from that place on, fewer where the file ends.
    QByteArray Read(std::int64_t offset, std::int64_t most) const;

    // From now on the library reads that byte there, whatever the file holds.
    void Replace(std::int64_t place, char byte) { replaced_.push_back({place, byte}); }

    // For the library: fills the buffer from where the file is.
    unsigned Fill(void* buffer, unsigned size, unsigned count) const;
    std::FILE* File() const { return file_; }

  private:
    struct Replaced {
        std::int64_t place;
        char byte;
    };
    std::FILE* file_;
    std::int64_t length_;
    std::vector<Replaced> replaced_;
};

}  // namespace varnel
