// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The options of films.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <optional>

#include "film/writing/film_writer.h"
#include "state/records/film_course.h"

namespace varnel {

struct FilmOptions {
    std::optional<FilmContainer> type;
    FilmCodec codec = FilmCodec::H264;
    std::optional<int> crf;
    QString speed;
    double from = 0.0;            // seconds from the first frame
    std::optional<double> to;     // likewise
    std::optional<double> frame;  // the time of the one that becomes a picture
    QString keysFile;
    FilmKeys keys;         // what it holds, once it was read
    QString output;        // the one film that all results become
    TimeBase rate{25, 1};  // of that, frames in a second
    bool rateGiven = false;
    bool keepPart = false;
};

// Throws UsageError.
void TakeFilm(const QCommandLineParser& parser, FilmOptions& film);
// Reads the file of keys. One line that says what is wrong with it, empty when nothing is. Throws
// std::bad_alloc only, as the rest.
QString TakeKeys(FilmOptions& film);

// By the option, else by the name's ending.
std::optional<FilmContainer> ContainerOf(const FilmOptions& film, const QString& name);
// For a film of that name: the option's, else the one that the film has, as far as films of that
// kind are written, else mp4.
FilmContainer ContainerFor(const FilmOptions& film, const QString& source);
FilmEncoding EncodingFor(const FilmOptions& film, FilmContainer container);

}  // namespace varnel
