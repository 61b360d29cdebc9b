// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film's file: the encoded pictures and the copied streams, interleaved. Throws std::bad_alloc.
#pragma once

#include <vector>

#include "film/writing/film_muxer.h"
#include "film/writing/module/av_headers.h"
#include "film/writing/module/picture_encoder.h"
#include "film/writing/module/stream_copies.h"

namespace varnel {

class Muxer : public FilmMuxer {
  public:
    explicit Muxer(FilmSink& output) : output_(output) {}
    ~Muxer() override;
    Muxer(const Muxer&) = delete;
    Muxer& operator=(const Muxer&) = delete;

    Reason Open(const FilmToWrite& film);
    Reasons LeftOut() const override { return leftOut_; }
    Reason Write(const FrameView& frame, std::int64_t pts, std::int64_t duration) override;
    Reason Write(const FilmPacket& packet) override;
    Reason Finish() override;

  private:
    Reason AddPictures(const FilmToWrite& film);
    void AddTheRest(const FilmToWrite& film);
    Reason WriteHeader(const FilmEncoding& encoding);
    Reason TakePicture(AVPacket* packet);
    Reason Failure(int error) const;
    static int WriteBytes(void* self, std::uint8_t* bytes, int length);
    static std::int64_t Seek(void* self, std::int64_t place, int whence);

    FilmSink& output_;
    Reason outputError_;
    AVFormatContext* file_ = nullptr;
    AVStream* pictures_ = nullptr;
    AVRational frameTimes_{};
    PictureEncoder encoder_;
    std::vector<StreamCopy> copies_;
    std::unique_ptr<AVPacket, FreePacket> packet_;
    Reasons leftOut_;
    bool begun_ = false;  // the header stands in the file
};

}  // namespace varnel
