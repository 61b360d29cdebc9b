// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The film libraries' headers, and owners for what they make. Throws nothing.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/imgutils.h>
#include <libavutil/intreadwrite.h>
#include <libavutil/mastering_display_metadata.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

#include <memory>

namespace varnel {

struct FreeLibav {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};

using FrameHandle = std::unique_ptr<AVFrame, FreeLibav>;
using PacketHandle = std::unique_ptr<AVPacket, FreeLibav>;
using CodecHandle = std::unique_ptr<AVCodecContext, FreeLibav>;
using ScalerHandle = std::unique_ptr<SwsContext, FreeLibav>;

}  // namespace varnel
