// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The remap of a film's frames plane by plane, without a way through RGB. The tables are made once
// for each change of settings. Brightness is read where varnel-convert reads a photo of the same
// size (classic sampling, which blends the four nearest samples, whatever the record says), colour
// at the mean of its places in brightness, with its site respected. Levels are within one of those
// that double precision gives, and the same on every machine. Where a record wants transparency
// outside the photo it is black; a lens that sees red and blue at other places than green is taken
// at green's, because planes of colour hold all three; marks are not drawn. Rows count from the top
// row. Throws what maps throw and std::bad_alloc.
#pragma once

#include <memory>

#include "base/block_runner.h"
#include "film/frames/frame_format.h"
#include "remap/projection/projection_info.h"

namespace varnel {

// The result's format for frames of that format: the record's output size, made even where colour
// is shared (the last row or column is left out), the rest as the source's.
FrameFormat RemappedFormat(const FrameFormat& source, const ImageRecord& image);

class FrameRemap {
  public:
    FrameRemap();
    ~FrameRemap();
    FrameRemap(const FrameRemap&) = delete;
    FrameRemap& operator=(const FrameRemap&) = delete;

    // The record's Width and Height are the frames'. Tables of equal settings are kept as they are.
    void Set(Projection projection, const ImageRecord& image, const FrameFormat& source,
             BlockRunner& runner);
    const FrameFormat& ResultFormat() const;
    // The views have the formats of Set. Any number of threads may draw at the same time.
    void Draw(const FrameView& source, const FrameTarget& result, BlockRunner& runner) const;

  private:
    struct Tables;
    std::unique_ptr<Tables> tables_;
};

}  // namespace varnel
