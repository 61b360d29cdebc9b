// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/film_pictures.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "film/conversion/film_cut.h"
#include "film/frames/frame_bitmap.h"
#include "remap/analysis/photo_circle.h"

namespace varnel {

namespace {

constexpr double rounding = 1e-6;  // seconds

using FrameHandle = std::shared_ptr<const FilmFrame>;

struct NextFrame {
    FrameHandle frame;  // null at the end
    Reason reason;
};

NextFrame FrameOf(FilmReader& reader) {
    while (true) {
        FilmItem item = reader.Next();
        if (auto* const frame = std::get_if<FrameHandle>(&item)) {
            return {std::move(*frame), {}};
        }
        if (const auto* const end = std::get_if<FilmEnd>(&item)) {
            return {nullptr, end->reason};
        }
    }
}

QString TagOf(const FilmInfo& film, std::initializer_list<const char*> names) {
    for (const auto& [name, value] : film.tags) {
        const QByteArray key = name.toLower();
        if (std::ranges::any_of(names, [&](const char* n) { return key == n; })) {
            return QString::fromUtf8(value);
        }
    }
    return {};
}

BitmapHandle PictureOf(const FilmReader& reader, const FilmFrame& frame, BlockRunner& runner,
                       bool eightBits) {
    BitmapHandle picture = FrameToBitmap(frame.view, runner, eightBits);
    picture->metadata.photo.origin = CameraOf(reader.Info());
    return picture;
}

Reason Lacking(const Reason& reason) {
    return reason.isEmpty() ? Reason(ReasonCode::FilmWithoutFrames) : reason;
}

struct Candidate {
    BitmapHandle picture;
    double radius = 0.0;  // 0 without a circle
};

}  // namespace

std::variant<BitmapHandle, Reason> FilmFrameAt(FilmReader& reader, double seconds,
                                               BlockRunner& runner, bool eightBits) {
    if (Reason error = reader.Seek(seconds); !error.isEmpty()) {
        return error;
    }
    const FilmCut whole(reader.Info(), {});
    FrameHandle shown;
    while (true) {
        NextFrame next = FrameOf(reader);
        if (!next.frame && !shown) {
            return Lacking(next.reason);
        }
        const bool isLater = next.frame && whole.Seconds(reader.Info().picture, next.frame->pts) >
                                               seconds + rounding;
        if (!next.frame || (isLater && shown)) {
            return PictureOf(reader, *shown, runner, eightBits);
        }
        shown = std::move(next.frame);
        if (isLater) {
            return PictureOf(reader, *shown, runner, eightBits);
        }
    }
}

CameraInfo CameraOf(const FilmInfo& film) {
    CameraInfo camera;
    camera.Make = TagOf(film, {"make", "com.apple.quicktime.make", "com.android.manufacturer"});
    camera.Model = TagOf(film, {"model", "com.apple.quicktime.model", "com.android.model"});
    return camera;
}

std::variant<BitmapHandle, Reason> TypicalFrame(FilmReader& reader, BlockRunner& runner,
                                                const std::function<bool()>& goesOn) {
    constexpr int count = 5;
    std::vector<Candidate> candidates;
    Reason reason;
    for (int n = 0; n < count; ++n) {
        if (goesOn && !goesOn()) {
            return ReasonCode::Cancelled;
        }
        // Key frames: nothing else is to be decoded for them.
        reason = reader.Seek(reader.Info().seconds * (n + 0.5) / count);
        const NextFrame next = reason.isEmpty() ? FrameOf(reader) : NextFrame{nullptr, reason};
        if (!next.frame) {
            reason = next.reason;
            continue;
        }
        Candidate candidate{PictureOf(reader, *next.frame, runner, true)};
        const auto circle = FindPhotoCircle(candidate.picture.get());
        candidate.radius = circle ? circle->radius : 0.0;
        candidates.push_back(std::move(candidate));
    }
    if (candidates.empty()) {
        return Lacking(reason);
    }
    const auto middle = candidates.begin() + static_cast<std::ptrdiff_t>(candidates.size() / 2);
    std::ranges::nth_element(candidates, middle, {}, &Candidate::radius);
    return std::move(middle->picture);
}

}  // namespace varnel
