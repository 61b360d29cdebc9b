// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/films/films.h"

#include "film/conversion/morph_films.h"

namespace varnel {

std::unique_ptr<MorphFilmMaker> NewMorphFilmMaker(ThreadRunner& pool,
                                                  const GeneralSettings& settings) {
    return std::make_unique<MorphFilms>([] { return NewPictureReader(); }, pool,
                                        [&settings] { return settings.AutoOrient; });
}

}  // namespace varnel
