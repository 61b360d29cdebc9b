// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The encoder of a film's pictures. Throws std::bad_alloc.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "film/writing/film_writer.h"
#include "film/writing/module/av_headers.h"
#include "film/writing/module/encoder_table.h"
#include "film/writing/module/frame_fitting.h"

namespace varnel {

struct FreeCodec {
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
};
struct FreeFrame {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct FreePacket {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

class PictureEncoder {
  public:
    // What is done with what comes out: times in the film's time base, the packet is taken.
    using Taker = std::function<Reason(AVPacket* packet)>;

    PictureEncoder() = default;
    ~PictureEncoder();
    PictureEncoder(const PictureEncoder&) = delete;
    PictureEncoder& operator=(const PictureEncoder&) = delete;

    // Before anything else. The flags are AV_CODEC_FLAG_...
    Reason Open(const FilmToWrite& film, int flags);
    const AVCodecContext& Codec() const { return *codec_; }
    Reason Encode(const FrameView& frame, std::int64_t pts, std::int64_t duration,
                  const Taker& take);
    Reason Flush(const Taker& take);

  private:
    Reason Set(const FilmToWrite& film);
    Reason SetChoices(const FilmEncoding& encoding);
    Reason Send(const AVFrame* frame, const Taker& take);
    Reason Failure(int error) const;

    const EncoderRow* row_ = nullptr;
    bool ended_ = true;
    std::unique_ptr<AVCodecContext, FreeCodec> codec_;
    std::unique_ptr<AVFrame, FreeFrame> frame_;
    std::unique_ptr<AVPacket, FreePacket> packet_;
    std::optional<FrameFitting> fitting_;
    std::map<std::int64_t, std::int64_t> durations_;  // by the times of frames on their way
};

}  // namespace varnel
