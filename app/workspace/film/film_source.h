// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The pictures of a film for the window, as a port: not every build can read films. Times are
// seconds from the film's first frame. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <optional>

#include "base/reason.h"
#include "remap/image/bitmap.h"

namespace varnel {

struct FilmFacts {
    double seconds = 0.0;           // length; 0 where it is not known
    double framesPerSecond = 25.0;  // more than 0
};

class FilmSource {
  public:
    virtual ~FilmSource() = default;
    // By its first bytes, quickly.
    virtual bool IsFilm(const QString& path) const = 0;
    // Instead of the one that is open. The reason where it cannot be read.
    virtual Reason Open(const QString& path) = 0;
    virtual FilmFacts Facts() const = 0;
    // On to the last key frame at or before the time, which Next gives then.
    virtual Reason Seek(double seconds) = 0;
    // Decodes the next frame; its time, or nothing at the film's end.
    virtual std::optional<double> Next() = 0;
    // The frame that Next gave last; null when there is none.
    virtual BitmapHandle Picture() = 0;
};

}  // namespace varnel
