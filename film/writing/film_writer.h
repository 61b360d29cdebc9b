// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a film: one encoded picture stream and copies of others. The file is NAME.part until
// Finish, so that under the film's name there is always a whole one. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "base/reason.h"
#include "film/frames/film_info.h"

namespace varnel {

class FileOperations;

enum class FilmContainer : std::uint8_t { Mp4, Matroska, QuickTime };
enum class FilmCodec : std::uint8_t { H264, H265, Av1, Vp9, Ffv1, ProRes };

// "mp4", "mkv", "mov" and "h264", "h265", "av1", "vp9", "ffv1", "prores"; by text also for endings.
QString ToText(FilmContainer container);
QString ToText(FilmCodec codec);
std::optional<FilmContainer> FilmContainerFromText(QStringView text);
std::optional<FilmCodec> FilmCodecFromText(QStringView text);

struct FilmEncoding {
    FilmContainer container = FilmContainer::Mp4;
    FilmCodec codec = FilmCodec::H264;
    std::optional<int> crf;  // none: the encoder's own
    QString speed;           // as the encoder names it: "ultrafast", "medium"; empty: its own
    int threads = 0;         // 0: as many as the machine has
    bool keepPart = false;   // fragmented, so that what there is of it plays
};

struct FilmToWrite {
    FilmEncoding encoding;
    FrameFormat format;
    TimeBase timeBase;   // of the frames' times
    TimeBase frameRate;  // 0 where it varies
    TimeBase sampleAspect;
    const FilmInfo* source = nullptr;  // whose other streams, chapters and tags are carried over
};

class FilmWriter {
  public:
    virtual ~FilmWriter() = default;
    // What is left out of the file and why, one line for each stream that the container cannot
    // hold.
    virtual QStringList Notes() const = 0;
    virtual Reason Write(const FrameView& frame, std::int64_t pts, std::int64_t duration) = 0;
    // Of a stream of the source, by its index there. What is not carried over is dropped.
    virtual Reason Write(const FilmPacket& packet) = 0;
    // Ends, syncs and renames the file. Without it the file is removed, or kept as NAME.part where
    // the encoding says so.
    virtual Reason Finish() = 0;
    // Bytes so far.
    virtual std::int64_t Length() const = 0;
};

struct OpenedFilmWriter {
    std::unique_ptr<FilmWriter> writer;
    Reason error;
};

// Errors are those of the file, encoders that the installed library does not have, and what
// container, codec and frames do not have in common. Films are written by a module that is loaded
// when the first one is. The operations, where they are given, outlive the writer.
OpenedFilmWriter NewFilmWriter(const QString& path, const FilmToWrite& film,
                               FileOperations* operations = nullptr);

}  // namespace varnel
