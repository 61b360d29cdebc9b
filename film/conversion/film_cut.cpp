// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/film_cut.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace varnel {

namespace {

constexpr double rounding = 1e-6;       // seconds
constexpr int attachedPicture = 0x400;  // AV_DISPOSITION_ATTACHED_PIC: a cover, of no time

double SecondsOf(std::int64_t time, const TimeBase& base) {
    return static_cast<double>(time) * base.num / base.den;
}

std::int64_t TimeOf(const FilmPacket& packet) {
    return packet.pts == noTime ? packet.dts : packet.pts;
}

// What is broadcast has times of a clock that nobody sees: in other containers hours of nothing
// would stand before the first frame.
bool CountsFromAnywhere(const FilmInfo& film) {
    return film.container == "mpegts" || film.container == "mpeg";
}

}  // namespace

FilmCut::FilmCut(const FilmInfo& film, const std::optional<FilmCourse>& course)
    : film_(film), to_(std::numeric_limits<double>::infinity()) {
    if (const StreamInfo* const pictures = Find(film.picture)) {
        base_ = pictures->timeBase;
    }
    if (course) {
        isPart_ = course->in > 0.0 || course->out;
        from_ = course->in;
        to_ = course->out.value_or(to_);
    }
    shift_ = CountsFromAnywhere(film) ? FirstTime() : 0;
}

// Of the stream that begins first, in the pictures' time base and rounded down; 0 where it is not
// known.
std::int64_t FilmCut::FirstTime() const {
    std::optional<double> first;
    for (const StreamInfo& stream : film_.streams) {
        if (stream.startTime != noTime) {
            const double seconds = SecondsOf(stream.startTime, stream.timeBase);
            first = std::min(first.value_or(seconds), seconds);
        }
    }
    const double units = first.value_or(0.0) * base_.den / base_.num;
    return std::abs(units) < 9e15 ? static_cast<std::int64_t>(std::floor(units)) : 0;
}

const StreamInfo* FilmCut::Find(int stream) const {
    const auto found = std::ranges::find(film_.streams, stream, &StreamInfo::index);
    return found == film_.streams.end() ? nullptr : &*found;
}

double FilmCut::Seconds(int stream, std::int64_t time) const {
    const StreamInfo* const info = Find(stream);
    return info == nullptr ? 0.0 : SecondsOf(time, info->timeBase) - film_.start;
}

bool FilmCut::IsBefore(double seconds) const {
    return seconds < from_ - rounding;
}

bool FilmCut::IsBehind(double seconds) const {
    return seconds >= to_ - rounding;
}

void FilmCut::Begin(std::int64_t pts) {
    begun_ = true;
    first_ = Seconds(film_.picture, pts);
    shift_ = isPart_ ? pts : shift_;
}

// To the nearest unit; the streams' times stay together to half of one.
std::int64_t FilmCut::ShiftIn(const TimeBase& base) const {
    const auto exact = static_cast<long double>(shift_) * base_.num * base.den /
                       (static_cast<long double>(base_.den) * base.num);
    return static_cast<std::int64_t>(std::llroundl(exact));
}

bool FilmCut::IsLost(const FilmPacket& packet) const {
    const StreamInfo* const info = Find(packet.stream);
    if (info == nullptr || !isPart_) {
        return info == nullptr;
    }
    const std::int64_t time = TimeOf(packet);
    return time == noTime ||
           ((info->disposition & attachedPicture) == 0 && IsBefore(Seconds(packet.stream, time)));
}

std::optional<FilmPacket> FilmCut::Moved(FilmPacket packet) const {
    const StreamInfo* const info = Find(packet.stream);
    const std::int64_t time = TimeOf(packet);
    if (info == nullptr || (isPart_ && time == noTime)) {
        return std::nullopt;
    }
    if ((info->disposition & attachedPicture) != 0) {
        return packet;
    }
    const double seconds = Seconds(packet.stream, time);
    if (isPart_ && (seconds < first_ - rounding || IsBehind(seconds))) {
        return std::nullopt;
    }
    const std::int64_t shift = ShiftIn(info->timeBase);
    for (std::int64_t* const one : {&packet.pts, &packet.dts}) {
        *one -= *one == noTime ? 0 : shift;
    }
    return packet;
}

FilmInfo FilmCut::Info() const {
    FilmInfo info = film_;
    if (!isPart_) {
        return info;
    }
    const double start = SecondsOf(shift_, base_);
    std::vector<Chapter> chapters;
    for (Chapter chapter : info.chapters) {
        const double units = static_cast<double>(chapter.timeBase.den) / chapter.timeBase.num;
        const auto first = static_cast<std::int64_t>(std::llround(start * units));
        const double last = std::min((film_.start + to_) * units, 9e15);
        chapter.end = std::min(chapter.end, static_cast<std::int64_t>(std::llround(last))) - first;
        chapter.start = std::max<std::int64_t>(chapter.start - first, 0);
        if (chapter.end > chapter.start) {
            chapters.push_back(chapter);
        }
    }
    info.chapters = std::move(chapters);
    // They say when the first frame was taken, which is another one now.
    const auto isTimecode = [](const auto& tag) { return tag.first == "timecode"; };
    info.tags.removeIf(isTimecode);
    for (StreamInfo& stream : info.streams) {
        stream.tags.removeIf(isTimecode);
    }
    return info;
}

}  // namespace varnel
