// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films for tests, made by the ffmpeg program, and what it says about them.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <vector>

#include "film/reading/film_reader.h"

namespace varnel::testing {

inline QByteArray OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished(-1);
    const bool failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    return failed ? QByteArray() : process.readAllStandardOutput();
}

// The words of a command line, apart by blanks.
inline QStringList Words(const QByteArray& line) {
    return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

class FilmFolder {
  public:
    QString Path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    // By ffmpeg's words for inputs and encoders; empty where it cannot.
    QString Make(const char* name, const QByteArray& words) const {
        const QString path = Path(name);
        QProcess process;
        process.setStandardInputFile(QProcess::nullDevice());
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral("ffmpeg"),
                      Words("-v error -y") + Words(words) + QStringList{path});
        process.waitForFinished(-1);
        return process.exitCode() == 0 ? path : QString();
    }

  private:
    QTemporaryDir folder_;
};

// A film as it was read to its end.
struct ReadFilm {
    Reason error;  // of opening
    FilmInfo info;
    std::vector<QByteArray> frames;  // planes one after the other, without gaps
    std::vector<std::int64_t> times;
    std::vector<FilmPacket> packets;
    std::vector<FilmFault> faults;
    Reason end;

    QByteArray AllFrames() const {
        QByteArray all;
        for (const QByteArray& frame : frames) {
            all += frame;
        }
        return all;
    }
};

inline QByteArray BytesOf(const FrameView& view) {
    QByteArray bytes;
    for (int n = 0; n < PlanesOf(view.format); ++n) {
        const PixelSize size = PlaneSize(view.format, n);
        const ConstPlane& plane = view.planes[static_cast<std::size_t>(n)];
        for (int y = 0; y < size.height; ++y) {
            bytes.append(reinterpret_cast<const char*>(plane.first + y * plane.pitch),
                         qsizetype{size.width} * BytesPerSample(view.format));
        }
    }
    return bytes;
}

// What comes until the end, or until so many frames have come.
inline void TakeItems(FilmReader& reader, ReadFilm& film, std::size_t most = 100'000) {
    while (film.frames.size() < most) {
        FilmItem item = reader.Next();
        if (const auto* frame = std::get_if<std::shared_ptr<const FilmFrame>>(&item)) {
            film.frames.push_back(BytesOf((*frame)->view));
            film.times.push_back((*frame)->pts);
        } else if (auto* packet = std::get_if<FilmPacket>(&item)) {
            film.packets.push_back(std::move(*packet));
        } else if (auto* fault = std::get_if<FilmFault>(&item)) {
            film.faults.push_back(std::move(*fault));
        } else {
            film.end = std::get<FilmEnd>(item).reason;
            return;
        }
    }
}

inline ReadFilm ReadWhole(FilmReader& reader, const QString& path,
                          const FilmReadChoices& choices = {}) {
    ReadFilm film;
    film.error = reader.Open(path, choices);
    if (film.error.isEmpty()) {
        film.info = reader.Info();
        TakeItems(reader, film);
    }
    return film;
}

inline ReadFilm ReadWhole(const QString& path, const FilmReadChoices& choices = {}) {
    return ReadWhole(*NewFilmReader(), path, choices);
}

}  // namespace varnel::testing
