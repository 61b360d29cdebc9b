// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The picture stream's packets in, frames and what is wrong with them out, in the order in which
// they are shown. Throws std::bad_alloc.
#pragma once

#include <deque>
#include <mutex>
#include <set>
#include <vector>

#include "base/reason.h"
#include "film/frames/film_info.h"
#include "film/reading/process/libav.h"

namespace varnel {

// A frame to be shown at its time; without a picture where that was lost.
struct DecodedFrame {
    FrameHandle picture;
    std::int64_t pts = noTime;
    std::int64_t duration = 0;
    bool key = false;
    bool isDamaged = false;
};

// Times of packets whose pictures the codec told to be damaged: not all codecs mark the frames
// themselves, and those that do forget it between their threads.
class DamageNotes {
  public:
    void Add(std::int64_t time) {
        const std::lock_guard lock(mutex_);
        times_.insert(time);
    }
    bool Take(std::int64_t time) {
        const std::lock_guard lock(mutex_);
        return times_.erase(time) > 0;
    }

  private:
    std::mutex mutex_;
    std::set<std::int64_t> times_;
};

// The library's messages go there from now on, and nowhere else.
void ListenForDamage();

class PictureDecoder {
  public:
    // Empty when it can decode; the reason when not.
    Reason Open(AVStream& stream);
    AVCodecContext& Codec() { return *codec_; }

    // A packet, or null behind the last one.
    void Put(const AVPacket* packet);
    enum class Got { Frame, WantsMore, End };
    Got Take(DecodedFrame& frame);
    // Forgets what it was given, as after a seek. Frames before that time are left out from now on,
    // noTime: none.
    void Flush(std::int64_t from);

  private:
    void NoteError();
    Got Receive();
    void AddLost(std::int64_t before);
    void AddPicture(FrameHandle picture);
    std::int64_t TimeOf(std::int64_t stated) const;

    DamageNotes damage_;
    CodecHandle codec_;
    std::int64_t usualDuration_ = 1;  // in the stream's time base
    std::int64_t from_ = noTime;
    std::int64_t last_ = noTime;        // time of the last frame that came
    std::set<std::int64_t> waiting_;    // times of the packets whose frames have not come
    std::vector<std::int64_t> errors_;  // for each, the last time that had been put in then
    std::deque<DecodedFrame> ready_;
};

}  // namespace varnel
