// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which part of a film goes into the new one, and at what times it stands there. Throws
// std::bad_alloc only.
#pragma once

#include <optional>
#include <vector>

#include "film/frames/film_info.h"
#include "state/records/film_course.h"

namespace varnel {

// A whole film keeps its times, but for those of a broadcast, whose first stream then begins at 0.
// Of a part the first frame comes at 0, and packets of other streams
// that begin with it or later, and before the part's end, move by the same time.
class FilmCut {
  public:
    FilmCut(const FilmInfo& film, const std::optional<FilmCourse>& course);

    // Seconds from the film's first frame.
    double Seconds(int stream, std::int64_t time) const;
    bool IsBefore(double seconds) const;
    bool IsBehind(double seconds) const;
    // Whether nothing of the part is read any more where the pictures are there already: other
    // streams may lag that far behind.
    bool IsOver(double seconds) const { return IsBehind(seconds - 1.0); }
    double From() const { return from_; }
    double To() const { return to_; }

    // The first frame of the part, whose time moves to 0. Before that no packet has its time.
    void Begin(std::int64_t pts);
    bool HasBegun() const { return begun_; }
    std::int64_t Moved(std::int64_t pts) const { return pts - shift_; }
    // Whether it is not of the part wherever that begins.
    bool IsLost(const FilmPacket& packet) const;
    // With its new times; none where it is not of the part.
    std::optional<FilmPacket> Moved(FilmPacket packet) const;

    // What is to be carried over of the film; after Begin.
    FilmInfo Info() const;

  private:
    const StreamInfo* Find(int stream) const;
    std::int64_t FirstTime() const;
    std::int64_t ShiftIn(const TimeBase& base) const;

    const FilmInfo& film_;
    TimeBase base_;  // of the pictures
    bool isPart_ = false;
    double from_ = 0.0;  // seconds
    double to_ = 0.0;    // may be infinite
    double first_ = 0.0;
    bool begun_ = false;
    std::int64_t shift_ = 0;  // of the pictures, in their time base
};

}  // namespace varnel
