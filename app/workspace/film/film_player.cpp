// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/film/film_player.h"

#include <algorithm>
#include <utility>

namespace varnel {

namespace {

constexpr int step = 20;             // ms of decoding between two looks at the events
constexpr int longestLag = 250;      // ms that playing is behind before its clock waits
constexpr double worthDecoding = 1;  // seconds ahead that are sooner decoded than sought

}  // namespace

FilmPlayer::FilmPlayer(FilmSource& source) : source_(source) {
    connect(&steps_, &QTimer::timeout, this, &FilmPlayer::GoOn);
}

Reason FilmPlayer::Open(const QString& path) {
    Close();
    Reason reason = source_.Open(path);
    if (reason.isEmpty()) {
        path_ = path;
        facts_ = source_.Facts();
    }
    return reason;
}

void FilmPlayer::Close() {
    Stop();
    steps_.stop();
    path_.clear();
    facts_ = {};
    wanted_ = 0.0;
    decoded_.reset();
}

void FilmPlayer::GoTo(double seconds) {
    if (path_.isEmpty()) {
        return;
    }
    Stop();
    const double last = facts_.seconds > 0.0 ? facts_.seconds - FrameSeconds() : seconds;
    wanted_ = std::clamp(seconds, 0.0, std::max(last, 0.0));
    const bool ahead = decoded_ && *decoded_ <= wanted_ && wanted_ - *decoded_ <= worthDecoding;
    if (!ahead) {
        decoded_.reset();
        if (source_.Seek(wanted_).isEmpty()) {
            Decode(0.0, 0);
            Show();  // the key frame, at once
        }
    }
    steps_.start(0);
}

void FilmPlayer::Play(double end) {
    if (path_.isEmpty() || playing_) {
        return;
    }
    playing_ = true;
    from_ = decoded_.value_or(wanted_);
    end_ = end;
    clock_.start();
    steps_.start(1);
    Q_EMIT PlayingChanged(true);
}

void FilmPlayer::Stop() {
    if (std::exchange(playing_, false)) {
        steps_.stop();
        Q_EMIT PlayingChanged(false);
    }
}

// Until a frame of that time or later, one at least, for that many milliseconds. False when there
// are more to come.
bool FilmPlayer::Decode(double target, int most) {
    QElapsedTimer since;
    since.start();
    const double tolerance = FrameSeconds() / 2.0;
    while (const std::optional<double> next = source_.Next()) {
        decoded_ = next;
        shown_ = false;
        if (*next + tolerance > target) {
            return true;
        }
        if (since.elapsed() >= most) {
            return false;
        }
    }
    end_ = 0.0;  // of the film: what was decoded last stays
    return true;
}

void FilmPlayer::Show() {
    if (decoded_ && !std::exchange(shown_, true)) {
        Q_EMIT FrameReady(*decoded_);
    }
}

void FilmPlayer::GoOn() {
    if (playing_) {
        PlayOn();
        return;
    }
    const bool isThere = decoded_ && *decoded_ + FrameSeconds() / 2.0 > wanted_;
    if (isThere || Decode(wanted_, step)) {
        steps_.stop();
        wanted_ = decoded_.value_or(wanted_);
        Show();
    }
}

void FilmPlayer::PlayOn() {
    const double target = from_ + static_cast<double>(clock_.elapsed()) / 1000.0;
    if (decoded_ && *decoded_ + FrameSeconds() / 2.0 > target) {
        return;  // its time has not come
    }
    if (!Decode(target, longestLag)) {
        from_ = *decoded_;  // too slow for this film: the clock waits
        clock_.start();
    }
    wanted_ = decoded_.value_or(wanted_);
    const bool ends = wanted_ + FrameSeconds() >= end_;
    Show();
    if (ends) {
        Stop();
    }
}

}  // namespace varnel
