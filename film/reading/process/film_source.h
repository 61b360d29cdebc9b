// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film as the answers that the program gets: its facts, then frames in slots, packets, faults and
// the end. Throws std::bad_alloc.
#pragma once

#include <deque>
#include <memory>
#include <optional>

#include "film/reading/film_protocol.h"
#include "film/reading/film_reader.h"
#include "film/reading/process/film_input.h"
#include "film/reading/process/frame_planes.h"
#include "film/reading/process/frame_slots.h"
#include "film/reading/process/frame_turn.h"
#include "film/reading/process/picture_decoder.h"

namespace varnel {

// An answer, what follows it, and the slot of a frame.
struct FilmOutput {
    FilmAnswer answer;
    QByteArray payload;
    SlotHold slot;
};

class FilmSource {
  public:
    FilmSource(Descriptor film, Descriptor memory, const FilmRequest& request);

    // Opens the film and decodes up to its first frame.
    FilmOutput Open();
    // What comes next; nothing behind the end.
    std::optional<FilmOutput> Next();
    FilmOutput Seek(double seconds);
    // Whether there is nothing more to come until a seek.
    bool HasNothing() const { return ended_ && outputs_.empty(); }

  private:
    FilmOutput Opened() const;
    Reason OpenPicture();
    void Advance();
    void ReadPacket();
    void TakePacket(const AVPacket& packet);
    void AddPacket(const AVPacket& packet);
    void HandOut(const DecodedFrame& frame);
    Reason Prepare(AVFrame& picture, const FrameFormat& format, std::int64_t pts);
    Reason Draw(AVFrame& picture, std::int64_t pts);
    void AddFault(const DecodedFrame& frame);
    void AddFrame(const DecodedFrame& frame);
    void AddEnd(const Reason& reason);
    Reason EndReason() const;
    bool SeekKey(std::int64_t time, std::int64_t wanted);
    double Seconds(std::int64_t pts) const;
    QString TimeText(std::int64_t pts) const;

    FilmRequest request_;
    FilmInput input_;
    PictureDecoder decoder_;
    FramePlanes planes_;
    std::shared_ptr<FrameSlots> slots_;
    FrameTurn turn_;
    FilmInfo film_;
    FrameFormat decoded_;  // before it is turned
    SlotLayout layout_;
    PacketHandle packet_;
    std::deque<FilmOutput> outputs_;
    std::uint64_t waitingBytes_ = 0;       // of packets among the outputs
    SlotHold shown_;                       // with the last good frame
    std::int64_t firstPts_ = 0;            // of the film's first frame
    double farthest_ = 0.0;                // seconds, where the last packets end
    std::int64_t farthestEntry_ = noTime;  // as the container's index counts
    std::int64_t pictures_ = 0;            // packets of the picture so far
    int readErrors_ = 0;
    bool sought_ = false;
    bool opened_ = false;
    bool drained_ = false;
    bool ended_ = false;
};

}  // namespace varnel
