// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films as they come out of the confined decoder: frames, packets of the other streams and faults,
// in the order of the file. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <memory>
#include <variant>

#include "base/reason.h"
#include "film/frames/film_info.h"

namespace varnel {

// A decoded picture, upright. Its pixels stay readable as long as anyone holds it, on any thread
// and behind the reader's end; a reader has framesAhead of them at most, and while all are held
// elsewhere, Next waits. Behind the last sample 64 bytes may be read. Samples of a hostile film may
// lie above what its bits hold.
class FilmFrame {
  public:
    virtual ~FilmFrame() = default;
    std::int64_t pts = noTime;  // in the picture stream's time base; rises from frame to frame
    std::int64_t duration = 0;
    bool key = false;
    FrameView view;
};

inline constexpr int framesAhead = 6;

// More bytes of packets before a picture than this end a film: whoever writes it has to keep them
// until that picture tells what is written.
inline constexpr std::uint64_t mostBeforePicture = std::uint64_t{256} << 20;
Reason TooMuchBeforePicture(std::uint64_t bytes);

// Part of the picture stream could not be decoded; what was decoded last is handed out again in
// its place, by a frame that follows.
struct FilmFault {
    std::int64_t pts = noTime;
    Reason reason;
};

// All was read. A reason where the film ends early.
struct FilmEnd {
    Reason reason;
};

using FilmItem = std::variant<std::shared_ptr<const FilmFrame>, FilmPacket, FilmFault, FilmEnd>;

struct FilmReadChoices {
    bool upright = true;
    bool packets = true;  // those of other streams are wanted, too
};

class FilmReader {
  public:
    virtual ~FilmReader() = default;
    // Opens a film and waits until its first frame is decoded. The reason where it is none. The
    // thread that opens it has to live as long as the film is read.
    virtual Reason Open(const QString& path, const FilmReadChoices& choices = {}) = 0;
    virtual const FilmInfo& Info() const = 0;
    // The next item. Waits for it; decoding goes on meanwhile up to framesAhead frames.
    virtual FilmItem Next() = 0;
    // On to the last key frame at or before the time, seconds from the first frame, or to the first
    // frame of all; where a container has no index perhaps to an earlier key frame. Next gives the
    // frames from there on. Also behind the end, and behind one that was a decoder's death.
    virtual Reason Seek(double seconds) = 0;
};

// Decoding in a process of its own, confined as photos' is.
std::unique_ptr<FilmReader> NewFilmReader();

// Whether a file is to be read as a film and not as a photo: by its first bytes.
bool IsFilm(const QString& path);

}  // namespace varnel
