// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Morph sequences as films: each picture of the sequence is converted at full size from the photo,
// which is read once, and goes into the film at once. Throws std::bad_alloc only.
#pragma once

#include <functional>
#include <memory>

#include "base/thread_runner.h"
#include "decoder/process/picture_reader.h"
#include "pipeline/conversion/films/film_saver.h"
#include "pipeline/conversion/films/morph_film.h"

namespace varnel {

class MorphFilms : public MorphFilmMaker {
  public:
    using NewReader = std::function<std::unique_ptr<PictureReader>()>;
    // Upright: the photo is turned as its EXIF says. The container is that of the path's ending.
    MorphFilms(NewReader newReader, ThreadRunner& pool, std::function<bool()> upright,
               FilmOutput output = {})
        : newReader_(std::move(newReader)),
          pool_(pool),
          upright_(std::move(upright)),
          output_(std::move(output)) {}
    Reason Make(const MorphFilm& film, const std::function<bool(int frames)>& goesOn) override;

  private:
    NewReader newReader_;
    ThreadRunner& pool_;
    std::function<bool()> upright_;
    FilmOutput output_;
};

}  // namespace varnel
