// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/films/films.h"

namespace varnel {

bool CanReadFilms() {
    return false;
}

std::unique_ptr<PictureReader> NewReaderWithFilms(const ReaderOptions& options) {
    return NewPictureReader(options);
}

std::unique_ptr<PictureReader> NewGearReader() {
    return NewPictureReader();
}

std::unique_ptr<FilmSource> NewFilmSource(ThreadRunner& /*pool*/) {
    return nullptr;
}

std::unique_ptr<FilmSaver> NewFilmSaver(const GeneralSettings& /*settings*/) {
    return nullptr;
}

std::unique_ptr<MorphFilmMaker> NewMorphFilmMaker(ThreadRunner& /*pool*/,
                                                  const GeneralSettings& /*settings*/,
                                                  const FilmOutput& /*output*/) {
    return nullptr;
}

}  // namespace varnel
