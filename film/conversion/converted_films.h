// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films of the list on their way to files. Throws std::bad_alloc only.
#pragma once

#include <functional>

#include "film/writing/film_writer.h"
#include "pipeline/conversion/films/film_saver.h"

namespace varnel {

// The container is that of the path's ending, mp4 for any other.
FilmEncoding EncodingOf(const FilmOutput& output, const QString& path);

class ConvertedFilms : public FilmSaver {
  public:
    // Upright: frames are turned as the film says.
    explicit ConvertedFilms(std::function<bool()> upright) : upright_(std::move(upright)) {}
    // The container is that of the path's ending.
    SavedFilm Save(const ImageRecord& film, const FilmOutput& output, const QString& path,
                   const std::function<bool(double part)>& goesOn) override;

  private:
    std::function<bool()> upright_;
};

}  // namespace varnel
