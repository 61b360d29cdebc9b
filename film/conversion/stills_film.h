// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of equal size as a film, each as long as the others. Throws std::bad_alloc only.
#pragma once

#include <memory>
#include <optional>

#include "base/block_runner.h"
#include "film/frames/frame_buffer.h"
#include "film/writing/film_writer.h"
#include "remap/image/bitmap.h"

namespace varnel {

// The picture as a frame of 8 bits: YCbCr by ITU-T H.273's matrix 1 in the short range, the
// picture's sRGB named so, colour for two by two pixels (at their left, between their rows). A last
// odd column or row is left out. The bitmap's rows count from the bottom row.
FrameBuffer FrameOf(const Bitmap& picture, BlockRunner& runner);

class StillsFilm {
  public:
    // The rate is frames in a second, num / den, both above 0.
    StillsFilm(QString path, FilmEncoding encoding, TimeBase rate,
               FileOperations* operations = nullptr);

    // The first one opens the file.
    Reason Add(const Bitmap& picture, BlockRunner& runner);
    std::int64_t Frames() const { return frames_; }
    PixelSize Size() const { return format_.size; }
    // Without it there is no film. At least one picture was added.
    Reason Finish();

  private:
    Reason Open();

    QString path_;
    FilmEncoding encoding_;
    TimeBase rate_;
    FileOperations* operations_;
    FrameFormat format_;
    std::unique_ptr<FilmWriter> writer_;
    std::int64_t frames_ = 0;
};

}  // namespace varnel
