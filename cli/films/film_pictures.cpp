// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Frames of films as photos, and photos as a film.

#include <optional>

#include "base/error_reason.h"
#include "cli/films/films.h"
#include "files/noting_operations.h"
#include "film/conversion/film_pictures.h"
#include "film/conversion/stills_film.h"

namespace varnel {

namespace {

class FilmOfResults : public ResultsAsFilm {
  public:
    FilmOfResults(const Options& options, const Console& console, BlockRunner& runner)
        : runner_(runner) {
        if (console.unfinished != nullptr && !options.film.keepPart) {
            operations_.emplace(*console.unfinished);
        }
        const FilmContainer container = ContainerFor(options.film, options.film.output);
        film_.emplace(options.film.output, EncodingFor(options.film, container), options.film.rate,
                      operations_ ? &*operations_ : nullptr);
    }
    Reason Add(const Bitmap& picture) override { return film_->Add(picture, runner_); }
    Reason Finish() override { return film_->Finish(); }
    int Frames() const override { return film_->Count(); }

  private:
    BlockRunner& runner_;
    std::optional<NotingOperations> operations_;
    std::optional<StillsFilm> film_;
};

}  // namespace

bool IsFilmFile(const QString& path) {
    return IsFilm(path);
}

LoadedPicture LoadFilmFrame(const QString& path, double seconds, bool deep, BlockRunner& runner) {
    const std::unique_ptr<FilmReader> reader = NewFilmReader();
    if (const Reason error = reader->Open(path, {true, false}); !error.isEmpty()) {
        return LoadedPicture::Refused(error);
    }
    auto picture = FilmFrameAt(*reader, seconds, runner, !deep);
    if (const auto* const error = std::get_if<Reason>(&picture)) {
        return LoadedPicture::Refused(*error);
    }
    LoadedPicture loaded;
    loaded.outcome = LoadOutcome::Loaded;
    loaded.bitmap = std::move(std::get<BitmapHandle>(picture));
    loaded.size = loaded.bitmap->Size();
    return loaded;
}

std::unique_ptr<ResultsAsFilm> NewResultsAsFilm(const Options& options, const Console& console,
                                                BlockRunner& runner) {
    return std::make_unique<FilmOfResults>(options, console, runner);
}

}  // namespace varnel
