// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window's films, decoded in a process of their own. Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "app/workspace/film/film_source.h"
#include "base/thread_runner.h"
#include "film/reading/film_reader.h"

namespace varnel {

class FilmFrames : public FilmSource {
  public:
    explicit FilmFrames(ThreadRunner& pool) : pool_(pool) {}
    bool IsFilm(const QString& path) const override { return varnel::IsFilm(path); }
    Reason Open(const QString& path) override;
    FilmFacts Facts() const override;
    Reason Seek(double seconds) override;
    std::optional<double> Next() override;
    BitmapHandle Picture() override;

  private:
    ThreadRunner& pool_;
    std::unique_ptr<FilmReader> reader_;
    std::shared_ptr<const FilmFrame> frame_;
};

}  // namespace varnel
