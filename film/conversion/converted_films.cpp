// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/converted_films.h"

#include <QFileInfo>

#include "base/error_text.h"
#include "base/thread_runner.h"
#include "film/conversion/convert_film.h"

namespace varnel {

FilmEncoding EncodingOf(const FilmOutput& output, const QString& path) {
    FilmEncoding encoding;
    encoding.container =
        FilmContainerFromText(QFileInfo(path).suffix()).value_or(FilmContainer::Mp4);
    encoding.codec = FilmCodecFromText(output.codec).value_or(FilmCodec::H264);
    encoding.crf = output.crf;
    encoding.speed = output.speed;
    return encoding;
}

SavedFilm ConvertedFilms::Save(const ImageRecord& film, const FilmOutput& output,
                               const QString& path,
                               const std::function<bool(double part)>& goesOn) {
    const std::unique_ptr<FilmReader> reader = NewFilmReader();
    if (const Reason reason = reader->Open(SourcePath(film), {.upright = upright_()});
        !reason.isEmpty()) {
        return {reason, {}};
    }
    FilmJob job{path, film, {}};
    job.image.Width = static_cast<std::int16_t>(reader->Info().format.size.width);
    job.image.Height = static_cast<std::int16_t>(reader->Info().format.size.height);
    job.encoding = EncodingOf(output, path);
    ThreadRunner runner;
    const FilmOutcome outcome = ConvertFilm(*reader, job, {runner, nullptr, goesOn});
    SavedFilm saved{outcome.error, outcome.notes};
    for (const Reason& damage : outcome.damage) {
        saved.notes.append(ErrorText(damage));
    }
    return saved;
}

}  // namespace varnel
