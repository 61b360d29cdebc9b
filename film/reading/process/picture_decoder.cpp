// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/picture_decoder.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <new>

#include "film/reading/process/film_input.h"

namespace varnel {

namespace {

constexpr int threads = 2;

// More packets than that without a frame are no delay of a codec.
constexpr std::size_t mostWaiting = 1000;

// Far from where sums overflow; a damaged container may say anything.
constexpr std::int64_t latest = std::int64_t{1} << 60;

std::int64_t Sane(std::int64_t time) {
    return time < -latest || time > latest ? noTime : time;
}

std::int64_t UsualDuration(const AVStream& stream) {
    const AVRational rate =
        stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
    if (rate.num <= 0 || rate.den <= 0) {
        return 1;
    }
    return std::clamp<std::int64_t>(av_rescale_q(1, av_inv_q(rate), stream.time_base), 1, latest);
}

// The time of a packet, which is what its frame is known by.
std::int64_t PacketTime(const AVPacket& packet) {
    return Sane(packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts);
}

// Called on the codec's own threads, each of which has a context of its own with the packet that it
// works on. What H.264 calls an error is often none to be seen; where it has to make up a part of
// the picture, that is told as other codecs of its time do.
void NoteDamage(void* context, int level, const char* format, va_list /*arguments*/) {
    if (context == nullptr || *static_cast<const AVClass**>(context) != avcodec_get_class()) {
        return;
    }
    const auto& codec = *static_cast<const AVCodecContext*>(context);
    const bool isConcealed = std::strncmp(format, "concealing ", 11) == 0;
    const bool isError = level <= AV_LOG_ERROR && codec.codec_id != AV_CODEC_ID_H264;
    if (codec.opaque != nullptr && (isConcealed || isError)) {
        static_cast<DamageNotes*>(codec.opaque)->Add(codec.reordered_opaque);
    }
}

}  // namespace

void ListenForDamage() {
    av_log_set_callback(&NoteDamage);
}

Reason PictureDecoder::Open(AVStream& stream) {
    const AVCodec* const decoder = avcodec_find_decoder(stream.codecpar->codec_id);
    codec_.reset(avcodec_alloc_context3(decoder));
    if (decoder == nullptr || !codec_) {
        throw std::bad_alloc();
    }
    avcodec_parameters_to_context(codec_.get(), stream.codecpar);
    codec_->pkt_timebase = stream.time_base;
    codec_->thread_count = threads;
    codec_->opaque = &damage_;
    usualDuration_ = UsualDuration(stream);
    const int error = avcodec_open2(codec_.get(), decoder, nullptr);
    return error < 0 ? LibavReason(error) : Reason();
}

void PictureDecoder::NoteError() {
    errors_.push_back(waiting_.empty() ? last_ : *waiting_.rbegin());
}

void PictureDecoder::Put(const AVPacket* packet) {
    if (packet != nullptr) {
        const std::int64_t time = PacketTime(*packet);
        codec_->reordered_opaque = time;
        if (time != noTime && (packet->flags & AV_PKT_FLAG_DISCARD) == 0 &&
            waiting_.size() < mostWaiting) {
            waiting_.insert(time);
        }
    }
    const int error = avcodec_send_packet(codec_.get(), packet);
    if (error < 0 && error != AVERROR_EOF && error != AVERROR(EAGAIN)) {
        NoteError();
    }
}

PictureDecoder::Got PictureDecoder::Take(DecodedFrame& frame) {
    while (ready_.empty()) {
        if (const Got got = Receive(); got != Got::Frame) {
            return got;
        }
    }
    frame = std::move(ready_.front());
    ready_.pop_front();
    return Got::Frame;
}

// Frame: asked once more, there may be something ready.
PictureDecoder::Got PictureDecoder::Receive() {
    FrameHandle picture(av_frame_alloc());
    if (!picture) {
        throw std::bad_alloc();
    }
    const int error = avcodec_receive_frame(codec_.get(), picture.get());
    if (error == AVERROR(EAGAIN)) {
        return Got::WantsMore;
    }
    if (error == AVERROR_EOF) {
        AddLost(noTime);
        return ready_.empty() ? Got::End : Got::Frame;
    }
    if (error < 0) {
        NoteError();
        return Got::Frame;
    }
    AddPicture(std::move(picture));
    return Got::Frame;
}

// Packets whose frames should have come before that time, or all where there is none: as many of
// them as there were errors are lost. Without an error they never were frames of their own.
void PictureDecoder::AddLost(std::int64_t before) {
    while (!waiting_.empty() && (before == noTime || *waiting_.begin() < before)) {
        const std::int64_t time = *waiting_.begin();
        waiting_.erase(waiting_.begin());
        if (!errors_.empty() && (last_ == noTime || time > last_) &&
            (from_ == noTime || time >= from_)) {
            errors_.erase(errors_.begin());
            ready_.push_back({nullptr, time, usualDuration_, false, true});
            last_ = time;
        }
    }
}

// Times rise, whatever a damaged container says.
std::int64_t PictureDecoder::TimeOf(std::int64_t stated) const {
    if (stated == noTime) {
        return last_ == noTime ? 0 : last_ + usualDuration_;
    }
    return last_ != noTime && stated <= last_ ? last_ + 1 : stated;
}

void PictureDecoder::AddPicture(FrameHandle picture) {
    const std::int64_t stated = Sane(picture->best_effort_timestamp);
    waiting_.erase(picture->reordered_opaque);
    if (stated != noTime) {
        if (from_ != noTime && stated < from_) {
            return;
        }
        AddLost(stated);
    }
    DecodedFrame frame;
    frame.pts = TimeOf(stated);
    const std::int64_t duration = Sane(picture->pkt_duration);
    frame.duration = duration > 0 ? duration : usualDuration_;
    frame.key = picture->key_frame != 0;
    frame.isDamaged =
        (picture->flags & AV_FRAME_FLAG_CORRUPT) != 0 || picture->decode_error_flags != 0;
    const bool isNoted = damage_.Take(picture->reordered_opaque);
    // References that a stream's beginning lacks are no damage.
    frame.isDamaged = frame.isDamaged || (isNoted && last_ != noTime);
    // An error that lost no frame was one within this one.
    const auto isPast = [&](std::int64_t time) { return time <= frame.pts; };
    if (std::erase_if(errors_, isPast) > 0) {
        frame.isDamaged = true;
    }
    frame.picture = std::move(picture);
    last_ = frame.pts;
    ready_.push_back(std::move(frame));
}

void PictureDecoder::Flush(std::int64_t from) {
    avcodec_flush_buffers(codec_.get());
    waiting_.clear();
    errors_.clear();
    ready_.clear();
    last_ = noTime;
    from_ = from;
}

}  // namespace varnel
