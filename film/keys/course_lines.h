// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film's part that is converted and its keys as named lines of a text file: FilmIn, which every
// film has, FilmOut, FilmKeys as JSON, and FilmAt for numbers of a later time than the start; times
// are in seconds. Throws std::bad_alloc only.
#pragma once

#include <QList>
#include <QStringList>
#include <utility>

#include "state/records/film_course.h"

namespace varnel {

using FilmLines = QList<std::pair<QString, QString>>;  // names and values

bool IsFilmLine(const QString& name);
FilmLines LinesOf(const FilmCourse& film);
// The names of those that cannot be used and are left out. A later line replaces an earlier one.
QStringList TakeLines(const FilmLines& lines, FilmCourse& film);

}  // namespace varnel
