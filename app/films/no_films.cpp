// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/films/films.h"

namespace varnel {

std::unique_ptr<MorphFilmMaker> NewMorphFilmMaker(ThreadRunner& /*pool*/,
                                                  const GeneralSettings& /*settings*/) {
    return nullptr;
}

}  // namespace varnel
