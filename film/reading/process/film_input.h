// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film's file as its container has it, read by descriptor: no other file, no address and no
// container that leads to such is ever opened. Throws std::bad_alloc.
#pragma once

#include "base/reason.h"
#include "decoder/process/descriptor.h"
#include "film/reading/process/libav.h"

namespace varnel {

class FilmInput {
  public:
    explicit FilmInput(Descriptor file);
    ~FilmInput();
    FilmInput(const FilmInput&) = delete;
    FilmInput& operator=(const FilmInput&) = delete;

    // Opens the container and finds its streams. The reason where there is no picture in it that
    // could be decoded.
    Reason Open();

    AVFormatContext& Container() { return *container_; }
    AVStream& Picture() { return *container_->streams[picture_]; }
    // As av_read_frame().
    int Read(AVPacket& packet) { return av_read_frame(container_, &packet); }
    // To the last place with a key frame at or before the time, in the picture's time base;
    // AV_NOPTS_VALUE: to the file's first byte.
    bool Seek(std::int64_t time);

  private:
    static int ReadBytes(void* input, std::uint8_t* bytes, int length);
    static std::int64_t SeekBytes(void* input, std::int64_t offset, int whence);

    // Whether it is made of boxes, and they end beyond the file or the one about the film is
    // missing.
    bool IsCutBox() const;

    Descriptor file_;
    std::int64_t length_ = 0;
    std::int64_t place_ = 0;
    AVIOContext* bytes_ = nullptr;
    AVFormatContext* container_ = nullptr;
    int picture_ = -1;
};

// What the library says about one of its errors.
Reason LibavReason(int error);

}  // namespace varnel
