// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where photos are decoded in the program itself nothing reads films: they need the confined
// process.

#include "cli/films/films.h"

namespace varnel {

bool IsFilmFile(const QString& /*path*/) {
    return false;
}

int ConvertFilms(const Options& /*options*/, const GearChoice& /*gears*/,
                 const GeneralSettings& /*settings*/, const Console& /*console*/) {
    return exitAllWritten;
}

LoadedPicture LoadFilmFrame(const QString& /*path*/, double /*seconds*/, bool /*deep*/,
                            BlockRunner& /*runner*/) {
    return LoadedPicture::Refused(ReasonCode::NoKnownType);
}

std::unique_ptr<ResultsAsFilm> NewResultsAsFilm(const Options& /*options*/,
                                                const Console& /*console*/,
                                                BlockRunner& /*runner*/) {
    return nullptr;
}

}  // namespace varnel
