// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/films/films.h"

#include "app/films/film_frames.h"
#include "app/films/film_pictures.h"
#include "film/conversion/converted_films.h"
#include "film/conversion/morph_films.h"

namespace varnel {

bool CanReadFilms() {
    return true;
}

std::unique_ptr<PictureReader> NewReaderWithFilms(const ReaderOptions& options) {
    return WithFilms(NewPictureReader(options), StandIn::First);
}

std::unique_ptr<PictureReader> NewGearReader() {
    return WithFilms(NewPictureReader(), StandIn::Typical);
}

std::unique_ptr<FilmSource> NewFilmSource(ThreadRunner& pool) {
    return std::make_unique<FilmFrames>(pool);
}

std::unique_ptr<FilmSaver> NewFilmSaver(const GeneralSettings& settings) {
    return std::make_unique<ConvertedFilms>([&settings] { return settings.AutoOrient; });
}

std::unique_ptr<MorphFilmMaker> NewMorphFilmMaker(ThreadRunner& pool,
                                                  const GeneralSettings& settings,
                                                  const FilmOutput& output) {
    return std::make_unique<MorphFilms>([] { return NewPictureReader(); }, pool,
                                        [&settings] { return settings.AutoOrient; }, output);
}

}  // namespace varnel
