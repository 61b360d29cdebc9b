// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of one size one after the other as a film without sound. Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "film/frames/bitmap_frame.h"
#include "film/writing/film_writer.h"

namespace varnel {

// As a fraction: one of the rates of television (30000/1001) where it is near, else to thousandths.
TimeBase FrameRateOf(double framesPerSecond);

class StillsFilm {
  public:
    // Nothing is written before the first picture is there. The operations, where they are given,
    // outlive it.
    StillsFilm(QString path, const FilmEncoding& encoding, TimeBase frameRate,
               FileOperations* operations = nullptr);

    // A picture of 8 bits. The reason where the film cannot be written, and for another size than
    // the first one's.
    Reason Add(const Bitmap& picture, BlockRunner& runner);
    // The film is there then; without it nothing is.
    Reason Finish();
    int Count() const { return count_; }

  private:
    QString path_;
    FilmToWrite film_;
    FileOperations* operations_;
    PixelSize size_{};
    FrameBuffer frame_;
    std::unique_ptr<FilmWriter> writer_;
    int count_ = 0;
};

}  // namespace varnel
