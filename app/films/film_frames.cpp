// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/films/film_frames.h"

#include "film/frames/frame_bitmap.h"

namespace varnel {

namespace {

double SecondsOf(std::int64_t units, const TimeBase& base) {
    return static_cast<double>(units) * base.num / base.den;
}

const StreamInfo* PictureOf(const FilmInfo& info) {
    for (const StreamInfo& stream : info.streams) {
        if (stream.index == info.picture) {
            return &stream;
        }
    }
    return nullptr;
}

}  // namespace

Reason FilmFrames::Open(const QString& path) {
    frame_.reset();
    reader_ = NewFilmReader();
    Reason reason = reader_->Open(path, {.upright = true, .packets = false});
    if (!reason.isEmpty()) {
        reader_.reset();
    }
    return reason;
}

FilmFacts FilmFrames::Facts() const {
    FilmFacts facts;
    if (reader_) {
        const FilmInfo& info = reader_->Info();
        const bool isKnown = info.frameRate.num > 0 && info.frameRate.den > 0;
        facts.seconds = info.seconds;
        facts.framesPerSecond = isKnown
                                    ? static_cast<double>(info.frameRate.num) / info.frameRate.den
                                    : facts.framesPerSecond;
    }
    return facts;
}

Reason FilmFrames::Seek(double seconds) {
    frame_.reset();
    return reader_ ? reader_->Seek(seconds) : Reason(ReasonCode::NoPicture);
}

std::optional<double> FilmFrames::Next() {
    while (reader_) {
        FilmItem item = reader_->Next();
        if (std::holds_alternative<FilmEnd>(item)) {
            return std::nullopt;
        }
        if (auto* const frame = std::get_if<std::shared_ptr<const FilmFrame>>(&item)) {
            frame_ = std::move(*frame);
            const StreamInfo* const stream = PictureOf(reader_->Info());
            const double place = stream != nullptr ? SecondsOf(frame_->pts, stream->timeBase) : 0.0;
            return std::max(place - reader_->Info().start, 0.0);
        }
    }
    return std::nullopt;
}

BitmapHandle FilmFrames::Picture() {
    return frame_ ? FrameToBitmap(frame_->view, pool_, true) : nullptr;
}

}  // namespace varnel
