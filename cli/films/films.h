// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films on the command line. Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "base/thread_runner.h"
#include "cli/conversion_records.h"
#include "cli/report/console.h"
#include "decoder/request/loaded_picture.h"
#include "remap/encode/save_bitmap.h"

namespace varnel {

// Whether the file is a film, by its content.
bool IsFilmFile(const QString& path);

// One after the other: those of the options' files. Returns the exit code.
int ConvertFilms(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                 const Console& console);

// The frame of that time, as a photo that was read.
LoadedPicture LoadFilmFrame(const QString& path, double seconds, bool deep, BlockRunner& runner);

// The film that --film names.
class ResultsAsFilm {
  public:
    virtual ~ResultsAsFilm() = default;
    virtual Reason Add(const Bitmap& picture) = 0;
    virtual Reason Finish() = 0;
    virtual int Frames() const = 0;
};
// Null where the build has no films.
std::unique_ptr<ResultsAsFilm> NewResultsAsFilm(const Options& options, const Console& console,
                                                BlockRunner& runner);

}  // namespace varnel
