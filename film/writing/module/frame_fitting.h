// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Frames as an encoder takes them where it does not take theirs. Nothing of them is lost. Throws
// std::bad_alloc.
#pragma once

#include "film/frames/frame_buffer.h"

namespace varnel {

class FrameFitting {
  public:
    // As FittingFormat gives them.
    FrameFitting(const FrameFormat& from, const FrameFormat& to);
    // The frame itself where nothing is to be done, else a copy that lasts until the next call.
    FrameView Fit(const FrameView& frame);

  private:
    void FitPlane(const FrameView& frame, int plane);

    FrameFormat from_;
    FrameFormat to_;
    FrameBuffer buffer_;
};

}  // namespace varnel
