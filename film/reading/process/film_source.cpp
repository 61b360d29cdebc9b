// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/film_source.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "decoder/process/sandbox.h"
#include "decoder/request/picture_limits.h"
#include "film/reading/process/film_facts.h"

namespace varnel {

namespace {

constexpr int mostReadErrors = 100;      // one after the other
constexpr std::uint64_t memoryPart = 4;  // of the machine's, that frames or packets may take here
constexpr double cutShort = 1.0;         // seconds that are missing at least
constexpr int cutPictures = 10;          // likewise

// Only that is the same from frame to frame.
bool IsAlike(const FrameFormat& one, const FrameFormat& other) {
    return one.size.width == other.size.width && one.size.height == other.size.height &&
           one.chroma == other.chroma && one.alpha == other.alpha && one.bits == other.bits;
}

FilmOutput OutputOf(FilmAnswerKind kind, QByteArray payload) {
    FilmOutput output;
    output.answer.kind = kind;
    output.answer.payloadLength = static_cast<std::uint64_t>(payload.size());
    output.payload = std::move(payload);
    return output;
}

}  // namespace

FilmSource::FilmSource(Descriptor film, Descriptor memory, const FilmRequest& request)
    : request_(request),
      input_(std::move(film)),
      slots_(std::make_shared<FrameSlots>(std::move(memory))),
      packet_(av_packet_alloc()) {
    if (!packet_) {
        throw std::bad_alloc();
    }
}

FilmOutput FilmSource::Open() {
    Reason error = OpenPicture();
    while (error.isEmpty() && !opened_ && !ended_) {
        Advance();
    }
    if (error.isEmpty() && !opened_) {
        // Nothing but packets and faults so far, and the end.
        const std::optional<Reason> end = UnpackReason(outputs_.back().payload);
        error = end && !end->isEmpty() ? *end : Reason(ReasonCode::FilmWithoutFrames);
    }
    ended_ = ended_ || !error.isEmpty();
    return error.isEmpty() ? Opened() : OutputOf(FilmAnswerKind::Refused, Pack(error));
}

Reason FilmSource::OpenPicture() {
    if (Reason error = input_.Open(); !error.isEmpty()) {
        return error;
    }
    const AVCodecParameters& codec = *input_.Picture().codecpar;
    Reason error = codec.width > 0 || codec.height > 0
                       ? SizeError(codec.width, codec.height, request_.memory)
                       : Reason();
    if (!error.isEmpty()) {
        return error;
    }
    film_ = FactsOf(input_.Container(), input_.Picture().index);
    turn_ = request_.upright ? TurnOf(input_.Picture()) : FrameTurn();
    return decoder_.Open(input_.Picture());
}

FilmOutput FilmSource::Opened() const {
    FilmOutput output = OutputOf(FilmAnswerKind::Opened, Pack(film_));
    output.answer.slotLength = slots_->Length();
    return output;
}

std::optional<FilmOutput> FilmSource::Next() {
    while (outputs_.empty() && !ended_) {
        Advance();
    }
    if (outputs_.empty()) {
        return std::nullopt;
    }
    FilmOutput output = std::move(outputs_.front());
    outputs_.pop_front();
    if (outputs_.empty()) {
        waitingBytes_ = 0;
    }
    return output;
}

void FilmSource::Advance() {
    LimitNextPhoto(request_.memory, request_.seconds);
    DecodedFrame frame;
    switch (decoder_.Take(frame)) {
        case PictureDecoder::Got::Frame:
            HandOut(frame);
            break;
        case PictureDecoder::Got::WantsMore:
            ReadPacket();
            break;
        case PictureDecoder::Got::End:
            AddEnd(EndReason());
            break;
    }
}

void FilmSource::ReadPacket() {
    const int error = drained_ ? AVERROR_EOF : input_.Read(*packet_);
    if (error >= 0) {
        readErrors_ = 0;
        TakePacket(*packet_);
        av_packet_unref(packet_.get());
    } else if (error == AVERROR_EOF || ++readErrors_ >= mostReadErrors) {
        drained_ = true;
        decoder_.Put(nullptr);
    }
}

void FilmSource::TakePacket(const AVPacket& packet) {
    const AVStream& stream = *input_.Container().streams[packet.stream_index];
    const std::int64_t time = packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
    if (time != AV_NOPTS_VALUE) {
        farthest_ = std::max(farthest_, static_cast<double>(time) * av_q2d(stream.time_base));
    }
    if (packet.stream_index == film_.picture) {
        farthestEntry_ = std::max(farthestEntry_, packet.dts);
        ++pictures_;
        if (av_packet_get_side_data(&packet, AV_PKT_DATA_ENCRYPTION_INFO, nullptr) != nullptr) {
            AddEnd(ReasonCode::FilmEncrypted);
        } else {
            decoder_.Put(&packet);
        }
    } else if (request_.packets &&
               static_cast<std::size_t>(packet.stream_index) < film_.streams.size() &&
               static_cast<std::uint64_t>(packet.size) < longestPayload / 2) {
        AddPacket(packet);
    }
}

void FilmSource::AddPacket(const AVPacket& packet) {
    outputs_.push_back(OutputOf(FilmAnswerKind::Packet, Pack(PacketOf(packet))));
    waitingBytes_ +=
        sizeof(FilmOutput) + static_cast<std::uint64_t>(outputs_.back().payload.size());
    const std::uint64_t most = std::min(mostBeforePicture, request_.memory / memoryPart);
    if (waitingBytes_ > most) {
        AddEnd(TooMuchBeforePicture(most));
    }
}

// In place of what is lost or damaged the last good one is shown again, if there is one.
void FilmSource::HandOut(const DecodedFrame& frame) {
    if (frame.isDamaged) {
        AddFault(frame);
    }
    if (frame.picture && (!frame.isDamaged || !shown_)) {
        if (const Reason error = Draw(*frame.picture, frame.pts); !error.isEmpty()) {
            AddEnd(error);
            return;
        }
    }
    if (shown_) {
        AddFrame(frame);
    }
}

// The first frame says what all are.
Reason FilmSource::Prepare(AVFrame& picture, const FrameFormat& format, std::int64_t pts) {
    decoded_ = format;
    film_.format = TurnedFormat(format, turn_);
    film_.turnedBy = DegreesOf(turn_);
    AddFactsOf(picture, turn_, input_.Container(), film_);
    layout_ = LayoutOf(film_.format);
    constexpr std::uint64_t slots = framesAhead + 2;
    if (layout_.length > request_.memory / memoryPart / slots) {
        return {ReasonCode::TooManyPixels, format.size.width, format.size.height};
    }
    slots_->SetLength(layout_.length);
    firstPts_ = pts;
    film_.start = static_cast<double>(pts) * av_q2d(input_.Picture().time_base);
    opened_ = true;
    return {};
}

Reason FilmSource::Draw(AVFrame& picture, std::int64_t pts) {
    if (Reason error = SizeError(picture.width, picture.height, request_.memory);
        !error.isEmpty()) {
        return error;
    }
    const FrameView view = planes_.Of(picture);
    if (view.planes[0].first == nullptr) {
        return ReasonCode::CannotBeDecoded;
    }
    if (!opened_) {
        if (Reason error = Prepare(picture, view.format, pts); !error.isEmpty()) {
            return error;
        }
    } else if (!IsAlike(view.format, decoded_)) {
        return {ReasonCode::FilmChanges, TimeText(pts)};
    }
    const std::optional<std::uint32_t> slot = slots_->Take();
    if (!slot) {
        return ReasonCode::NotEnoughMemory;
    }
    shown_ = SlotHold(slots_, *slot);
    FrameTarget target{.format = film_.format};
    for (std::size_t n = 0; n < layout_.planes.size(); ++n) {
        target.planes[n] = {slots_->Bytes(*slot) + layout_.planes[n].offset,
                            static_cast<std::ptrdiff_t>(layout_.planes[n].pitch)};
    }
    FrameView alike = view;
    alike.format = decoded_;
    TurnFrame(alike, turn_, target);
    return {};
}

void FilmSource::AddFault(const DecodedFrame& frame) {
    const ReasonCode code = frame.picture ? ReasonCode::FrameDamaged : ReasonCode::FrameLost;
    FilmOutput output = OutputOf(FilmAnswerKind::Fault, Pack({code, TimeText(frame.pts)}));
    output.answer.pts = frame.pts;
    outputs_.push_back(std::move(output));
}

void FilmSource::AddFrame(const DecodedFrame& frame) {
    FilmOutput output = OutputOf(FilmAnswerKind::Frame, {});
    output.answer.pts = frame.pts;
    output.answer.duration = frame.duration;
    output.answer.key = frame.key ? 1 : 0;
    output.answer.slot = shown_.Slot();
    output.answer.planes = layout_.planes;
    output.slot = shown_;
    outputs_.push_back(std::move(output));
}

void FilmSource::AddEnd(const Reason& reason) {
    outputs_.push_back(OutputOf(FilmAnswerKind::End, Pack(reason)));
    ended_ = true;
}

// Nothing, unless the container told of more than there was.
Reason FilmSource::EndReason() const {
    const AVFormatContext& container = const_cast<FilmSource*>(this)->input_.Container();
    AVStream* const stream = container.streams[film_.picture];
    const int entries = avformat_index_get_entries_count(stream);
    if (entries > 0 && stream->nb_frames == entries) {
        const AVIndexEntry* const last = avformat_index_get_entry(stream, entries - 1);
        return farthestEntry_ < last->timestamp ? ReasonCode::FileCutShort : ReasonCode::None;
    }
    if (readErrors_ >= mostReadErrors) {
        return ReasonCode::FileCutShort;
    }
    // Stated by the head; what is dropped in recording may be counted there, too.
    if (!sought_ && stream->nb_frames - stream->nb_frames / 20 > pictures_ + cutPictures) {
        return ReasonCode::FileCutShort;
    }
    const bool isStated = container.duration != AV_NOPTS_VALUE &&
                          container.duration_estimation_method == AVFMT_DURATION_FROM_STREAM;
    const double start = container.start_time != AV_NOPTS_VALUE
                             ? static_cast<double>(container.start_time) / AV_TIME_BASE
                             : 0.0;
    const double end = start + static_cast<double>(container.duration) / AV_TIME_BASE;
    return isStated && farthest_ + cutShort < end ? ReasonCode::FileCutShort : ReasonCode::None;
}

FilmOutput FilmSource::Seek(double seconds) {
    sought_ = true;
    const AVRational base = input_.Picture().time_base;
    const double units = seconds / av_q2d(base);
    constexpr double farthest = 1e15;
    const std::int64_t wanted =
        firstPts_ + std::llround(std::clamp(std::isfinite(units) ? units : 0.0, 0.0, farthest));
    const std::int64_t second = std::max<std::int64_t>(std::llround(1.0 / av_q2d(base)), 1);
    // Containers without an index lead to places between key frames, or behind the time.
    constexpr int steps[] = {0, 1, 3, 10, 30};
    bool isThere = false;
    for (const int back : steps) {
        isThere = isThere || SeekKey(wanted - back * second, wanted);
    }
    isThere = isThere || SeekKey(firstPts_, std::numeric_limits<std::int64_t>::max()) ||
              SeekKey(noTime, std::numeric_limits<std::int64_t>::max());
    if (!isThere) {
        AddEnd(ReasonCode::FileCutShort);
    }
    return OutputOf(FilmAnswerKind::Sought, Pack(Reason()));
}

// To a key frame at or before what is wanted, with its packet in the decoder. False where there is
// none from there on.
bool FilmSource::SeekKey(std::int64_t time, std::int64_t wanted) {
    outputs_.clear();
    waitingBytes_ = 0;
    shown_ = {};
    drained_ = false;
    ended_ = false;
    readErrors_ = 0;
    if (!input_.Seek(time)) {
        return false;
    }
    decoder_.Flush(noTime);
    while (input_.Read(*packet_) >= 0) {
        LimitNextPhoto(request_.memory, request_.seconds);
        const bool isPicture = packet_->stream_index == film_.picture;
        const bool isKey = isPicture && (packet_->flags & AV_PKT_FLAG_KEY) != 0;
        const std::int64_t at = packet_->pts != AV_NOPTS_VALUE ? packet_->pts : packet_->dts;
        if (isKey && at != AV_NOPTS_VALUE && at > wanted) {
            break;
        }
        if (isKey) {
            decoder_.Flush(packet_->pts);
        }
        if (isKey || !isPicture) {
            TakePacket(*packet_);
        }
        av_packet_unref(packet_.get());
        if (isKey || ended_) {
            return true;
        }
    }
    av_packet_unref(packet_.get());
    return false;
}

double FilmSource::Seconds(std::int64_t pts) const {
    const AVRational base{film_.streams[static_cast<std::size_t>(film_.picture)].timeBase.num,
                          film_.streams[static_cast<std::size_t>(film_.picture)].timeBase.den};
    return static_cast<double>(pts - (opened_ ? firstPts_ : pts)) * av_q2d(base);
}

QString FilmSource::TimeText(std::int64_t pts) const {
    return QString::number(Seconds(pts), 'f', 3);
}

}  // namespace varnel
