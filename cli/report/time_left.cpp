// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/time_left.h"

#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

constexpr std::size_t window = 30;  // moments
constexpr std::size_t fewest = 3;
constexpr double shortest = 2.0;  // seconds

}  // namespace

void RunPace::Done(double now, int pictures) {
    moments_.push_back({now, pictures + (moments_.empty() ? 0 : moments_.back().done)});
    if (moments_.size() > window) {
        moments_.pop_front();
    }
}

std::optional<double> RunPace::Left(int pictures, double now) const {
    if (moments_.size() < fewest || now - moments_.front().time < shortest) {
        return std::nullopt;
    }
    const Moment& first = moments_.front();
    const Moment& last = moments_.back();
    const double each = (last.time - first.time) / (last.done - first.done);
    const double rest = each * pictures - (now - last.time);
    // While one takes longer than the others have, no more than its own time is taken off.
    return std::max(rest, each * (pictures - 1));
}

QString LeftText(double seconds) {
    constexpr int minute = 60;
    constexpr int hour = 3600;
    const int step = seconds > hour ? minute : seconds > minute ? 10 : seconds > 10 ? 5 : 1;
    const int left = std::max(1, static_cast<int>(std::ceil(std::min(seconds, 1e8) / step))) * step;
    if (left >= hour) {
        return QStringLiteral("%1 h %2 min left").arg(left / hour).arg(left % hour / minute);
    }
    if (left >= minute) {
        return QStringLiteral("%1 min %2 s left").arg(left / minute).arg(left % minute);
    }
    return QStringLiteral("%1 s left").arg(left);
}

}  // namespace varnel
