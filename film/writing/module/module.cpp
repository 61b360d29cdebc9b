// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdlib>

#include "film/writing/module/av_log.h"
#include "film/writing/module/muxer.h"

extern "C" __attribute__((visibility("default"))) void VarnelOpenFilmMuxer1(
    const varnel::FilmToWrite& film, varnel::FilmSink& output, varnel::OpenedFilmMuxer& opened) {
    varnel::CatchAvLog();
    ::setenv("SVT_LOG", "1", 0);  // errors only; this encoder takes it from nowhere else
    auto muxer = std::make_unique<varnel::Muxer>(output);
    opened.error = muxer->Open(film);
    opened.muxer = opened.error.isEmpty() ? std::move(muxer) : nullptr;
}
