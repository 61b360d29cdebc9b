// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A morph sequence as a film, for who can write films: not every build can. Throws what the maker
// throws.
#pragma once

#include <QString>
#include <functional>

#include "base/reason.h"
#include "pipeline/conversion/morph_sequence.h"

namespace varnel {

struct MorphFilm {
    ImageRecord image;  // prepared as for the queue
    MorphEnds ends;
    int frames = 0;                // 2 or more
    double framesPerSecond = 0.0;  // more than 0
    QString path;                  // with the film's ending; what is there is replaced at the end
};

class MorphFilmMaker {
  public:
    virtual ~MorphFilmMaker() = default;
    // Returns when the film is there, or the reason why it is not; then the path is as it was
    // before. Asks `goesOn` on this thread after each frame, with the number of frames so far;
    // false gives up for the reason Cancelled. Throws std::bad_alloc.
    virtual Reason Make(const MorphFilm& film, const std::function<bool(int frames)>& goesOn) = 0;
};

}  // namespace varnel
