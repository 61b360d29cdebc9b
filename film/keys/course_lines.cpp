// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/keys/course_lines.h"

#include <QLocale>

#include "film/keys/film_keys.h"

namespace varnel {

namespace {

constexpr QLatin1StringView filmIn("FilmIn");
constexpr QLatin1StringView filmOut("FilmOut");
constexpr QLatin1StringView filmKeys("FilmKeys");
constexpr QLatin1StringView filmAt("FilmAt");

QString TimeText(double seconds) {
    return QString::number(seconds, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> TimeFrom(const QString& text) {
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    const bool isTime = isNumber && seconds >= 0.0 && seconds <= latestKey;
    return isTime ? std::optional(seconds) : std::nullopt;
}

bool TakeLine(const QString& name, const QString& value, FilmCourse& film) {
    if (name == filmKeys) {
        auto keys = FilmKeysFromJson(value.toUtf8());
        FilmKeys* const read = std::get_if<FilmKeys>(&keys);
        film.keys = read != nullptr ? std::move(*read) : FilmKeys();
        return read != nullptr;
    }
    const std::optional<double> time = TimeFrom(value);
    if (name == filmOut) {
        film.out = time;
    } else if (name == filmAt) {
        film.at = time.value_or(0.0);
    } else {
        film.in = time.value_or(0.0);
    }
    return time.has_value();
}

}  // namespace

bool IsFilmLine(const QString& name) {
    return name == filmIn || name == filmOut || name == filmKeys || name == filmAt;
}

FilmLines LinesOf(const FilmCourse& film) {
    FilmLines lines{{filmIn, TimeText(film.in)}};
    if (film.out) {
        lines.append({filmOut, TimeText(*film.out)});
    }
    if (!film.keys.empty()) {
        lines.append({filmKeys, QString::fromUtf8(ToJson(film.keys))});
    }
    if (film.at > 0.0) {
        lines.append({filmAt, TimeText(film.at)});
    }
    return lines;
}

QStringList TakeLines(const FilmLines& lines, FilmCourse& film) {
    QStringList unusable;
    for (const auto& [name, value] : lines) {
        if (IsFilmLine(name) && !TakeLine(name, value, film)) {
            unusable.append(name);
        }
    }
    if (film.out && *film.out <= film.in) {
        film.out.reset();
        unusable.append(filmOut);
    }
    return unusable;
}

}  // namespace varnel
