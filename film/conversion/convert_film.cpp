// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/convert_film.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "base/error_reason.h"
#include "film/conversion/film_cut.h"
#include "film/conversion/writing_thread.h"
#include "film/keys/film_keys.h"
#include "film/planes/frame_remap.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr qsizetype mostTold = 1000;  // of a film's damage

// As people read it.
QString SecondsText(double seconds) {
    return QString::number(seconds, 'f', 3);
}

// Empty where it may be finished.
bool MayBeFinished(const Reason& end) {
    return end.isEmpty() || end.Is(ReasonCode::FileCutShort);
}

// In memory, about.
std::uint64_t BytesOf(const FilmPacket& packet) {
    std::uint64_t bytes = sizeof packet + static_cast<std::uint64_t>(packet.bytes.size());
    for (const SideData& side : packet.sideData) {
        bytes += sizeof side + static_cast<std::uint64_t>(side.bytes.size());
    }
    return bytes;
}

class Conversion {
  public:
    Conversion(FilmReader& reader, const FilmJob& job, const FilmPorts& ports)
        : reader_(reader), job_(job), ports_(ports), cut_(reader.Info(), job.image.Film) {}

    FilmOutcome Go() {
        const Reason thrown = Attempt([this] { Convert(); });
        outcome_.error = thrown.isEmpty() ? outcome_.error : thrown;
        thread_.reset();
        writer_.reset();  // an unfinished one removes its file
        return std::move(outcome_);
    }

  private:
    const FilmInfo& Info() const { return reader_.Info(); }

    void Convert() {
        if (!Fail(reader_.Seek(cut_.From()))) {
            while (!over_ && outcome_.error.isEmpty()) {
                Take(reader_.Next());
                GoOn();
            }
        }
        if (outcome_.error.isEmpty()) {
            Finish();
        }
    }

    bool Fail(const Reason& error) {
        outcome_.error = error;
        return !error.isEmpty();
    }

    void GoOn() {
        const double end = std::min(cut_.To(), Info().seconds);
        const double length = std::max(end - cut_.From(), 1e-3);
        const double part = std::clamp((at_ - cut_.From()) / length, 0.0, 1.0);
        if (outcome_.error.isEmpty() && ports_.goesOn && !ports_.goesOn(part)) {
            Fail(ReasonCode::Cancelled);
        }
        if (outcome_.error.isEmpty() && thread_) {
            Fail(thread_->Error());
        }
    }

    void Take(FilmItem item) {
        if (const auto* const frame = std::get_if<std::shared_ptr<const FilmFrame>>(&item)) {
            TakeFrame(**frame);
        } else if (auto* const packet = std::get_if<FilmPacket>(&item)) {
            TakePacket(std::move(*packet));
        } else if (const auto* const fault = std::get_if<FilmFault>(&item)) {
            Tell(fault->reason);
        } else {
            TakeEnd(std::get<FilmEnd>(item).reason);
        }
    }

    void Tell(const Reason& damage) {
        if (!damage.isEmpty() && outcome_.damage.size() < mostTold &&
            !outcome_.damage.contains(damage)) {
            outcome_.damage.append(damage);
        }
    }

    void TakeEnd(const Reason& end) {
        over_ = true;
        if (MayBeFinished(end)) {
            Tell(end);
        } else {
            Fail(end);
        }
    }

    void TakePacket(FilmPacket packet) {
        if (!cut_.HasBegun()) {
            Keep(std::move(packet));
        } else if (auto moved = cut_.Moved(std::move(packet))) {
            thread_->Put(std::move(*moved));
        }
    }

    void Keep(FilmPacket packet) {
        if (cut_.IsLost(packet)) {
            return;
        }
        waitingBytes_ += BytesOf(packet);
        if (waitingBytes_ > mostBeforePicture) {
            Fail(TooMuchBeforePicture(mostBeforePicture));
        } else {
            waiting_.push_back(std::move(packet));
        }
    }

    void TakeFrame(const FilmFrame& frame) {
        at_ = cut_.Seconds(Info().picture, frame.pts);
        if (cut_.IsBefore(at_)) {
            return;
        }
        if (cut_.IsBehind(at_)) {
            over_ = cut_.IsOver(at_);
            return;
        }
        if (!cut_.HasBegun() && Fail(Begin(frame.pts))) {
            return;
        }
        const std::int64_t pts = cut_.Moved(frame.pts);
        if (last_ && pts <= *last_) {
            Tell({ReasonCode::FrameTooLate, SecondsText(at_)});
            return;
        }
        last_ = pts;
        Draw(frame, pts);
    }

    void Draw(const FilmFrame& frame, std::int64_t pts) {
        if (Moving()) {
            SetMaps();
        }
        FrameBuffer& slot = thread_->Slot();
        remap_.Draw(frame.view, slot.Target(), ports_.runner);
        thread_->Put(pts, DurationOf(frame));
        ++outcome_.frames;
    }

    bool Moving() const { return job_.image.Film && !job_.image.Film->keys.empty(); }

    void SetMaps() {
        const ImageRecord image =
            Moving() ? RecordAt(job_.image, job_.image.Film->keys, at_) : job_.image;
        remap_.Set(ProjectionFromIndex(image.Projection), image, Info().format, ports_.runner);
    }

    const StreamInfo* Pictures() const {
        const auto& streams = Info().streams;
        const auto found = std::ranges::find(streams, Info().picture, &StreamInfo::index);
        return found == streams.end() ? nullptr : &*found;
    }

    TimeBase PictureTimes() const {
        return Pictures() == nullptr ? TimeBase{1, 1000} : Pictures()->timeBase;
    }

    // In the stream's time base. Near the stream's end up to that, which is right for the last
    // frame; of all others the next one's time decides. What a decoder says of a frame is that of
    // its packet, in the order of the file.
    std::int64_t DurationOf(const FilmFrame& frame) const {
        const TimeBase rate = Info().frameRate;
        const TimeBase base = PictureTimes();
        const double units = static_cast<double>(base.den) / base.num;
        const std::int64_t usual = rate.num > 0 ? std::llround(units * rate.den / rate.num) : 0;
        const StreamInfo* const stream = Pictures();
        if (stream != nullptr && stream->startTime != noTime && stream->duration > 0) {
            constexpr std::int64_t longest = 4;  // frames
            const std::int64_t rest = stream->startTime + stream->duration - frame.pts;
            if (rest > 0 && rest <= longest * usual) {
                return rest;
            }
        }
        return frame.duration > 0 ? frame.duration : usual;
    }

    Reason Begin(std::int64_t pts) {
        SetMaps();
        cut_.Begin(pts);
        const FilmInfo info = cut_.Info();
        FilmToWrite film{job_.encoding,    remap_.ResultFormat(), PictureTimes(),
                         Info().frameRate, Info().sampleAspect,   &info};
        OpenedFilmWriter opened = NewFilmWriter(job_.target, film, ports_.operations);
        if (!opened.writer) {
            return opened.error;
        }
        writer_ = std::move(opened.writer);
        outcome_.notes = writer_->Notes();
        outcome_.size = remap_.ResultFormat().size;
        thread_.emplace(*writer_, remap_.ResultFormat());
        for (FilmPacket& packet : std::exchange(waiting_, {})) {
            TakePacket(std::move(packet));
        }
        return {};
    }

    void Finish() {
        if (outcome_.frames == 0) {
            Fail({ReasonCode::NothingBetweenTimes, SecondsText(cut_.From()),
                  SecondsText(std::min(cut_.To(), std::max(Info().seconds, cut_.From()))),
                  SecondsText(Info().seconds)});
            return;
        }
        if (!Fail(thread_->Drain())) {
            thread_.reset();
            Fail(writer_->Finish());
        }
    }

    FilmReader& reader_;
    const FilmJob& job_;
    const FilmPorts& ports_;
    FilmCut cut_;
    FrameRemap remap_;
    FilmOutcome outcome_;
    std::vector<FilmPacket> waiting_;  // before the first frame
    std::uint64_t waitingBytes_ = 0;
    std::optional<std::int64_t> last_;
    double at_ = 0.0;  // of the frame at hand
    bool over_ = false;
    std::unique_ptr<FilmWriter> writer_;
    std::optional<WritingThread> thread_;  // last: it ends before what it works with
};

}  // namespace

FilmOutcome ConvertFilm(FilmReader& reader, const FilmJob& job, const FilmPorts& ports) {
    return Conversion(reader, job, ports).Go();
}

}  // namespace varnel
