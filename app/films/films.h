// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window's films. Where the program is built without their decoder there are none: then the
// reader reads photos only, and all else is null. Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "app/workspace/film/film_source.h"
#include "base/thread_runner.h"
#include "decoder/process/picture_reader.h"
#include "pipeline/conversion/films/film_saver.h"
#include "pipeline/conversion/films/morph_film.h"
#include "state/settings/general_settings.h"

namespace varnel {

bool CanReadFilms();
// Photos as they are, and films as their first frame.
std::unique_ptr<PictureReader> NewReaderWithFilms(const ReaderOptions& options = {});
// The same for finding gears and image circles: of films a frame that shows them well.
std::unique_ptr<PictureReader> NewGearReader();
std::unique_ptr<FilmSource> NewFilmSource(ThreadRunner& pool);
std::unique_ptr<FilmSaver> NewFilmSaver(const GeneralSettings& settings);
std::unique_ptr<MorphFilmMaker> NewMorphFilmMaker(ThreadRunner& pool,
                                                  const GeneralSettings& settings,
                                                  const FilmOutput& output);

}  // namespace varnel
