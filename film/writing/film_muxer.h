// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a program and its module for writing films say to each other. The codecs' libraries come
// with the module only, so that programs start without them. Both are of one build: plain C++
// passes between them. Throws std::bad_alloc only.
#pragma once

#include <QByteArrayView>
#include <memory>

#include "film/writing/film_writer.h"

namespace varnel {

// The file, as the module writes it.
class FilmSink {
  public:
    virtual ~FilmSink() = default;
    virtual Reason Write(QByteArrayView bytes) = 0;
    // Bytes from the start.
    virtual Reason MoveTo(qint64 place) = 0;
    virtual qint64 Place() const = 0;
    virtual qint64 Length() const = 0;
};

// As FilmWriter's functions of the same name; Finish ends the stream and not the file.
class FilmMuxer {
  public:
    virtual ~FilmMuxer() = default;
    virtual Reasons LeftOut() const = 0;  // a reason for each stream
    virtual Reason Write(const FrameView& frame, std::int64_t pts, std::int64_t duration) = 0;
    virtual Reason Write(const FilmPacket& packet) = 0;
    virtual Reason Finish() = 0;
};

struct OpenedFilmMuxer {
    std::unique_ptr<FilmMuxer> muxer;
    Reason error;
};

// The module's one function. The output outlives the muxer.
using OpenFilmMuxer = void (*)(const FilmToWrite& film, FilmSink& output, OpenedFilmMuxer& opened);
inline constexpr char openFilmMuxer[] = "VarnelOpenFilmMuxer1";

}  // namespace varnel
