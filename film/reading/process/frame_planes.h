// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Decoded frames as planes: whatever form a codec has them in, without loss where planes can hold
// it. Throws std::bad_alloc.
#pragma once

#include "film/frames/frame_buffer.h"
#include "film/frames/frame_format.h"
#include "film/reading/process/libav.h"

namespace varnel {

class FramePlanes {
  public:
    // The planes of a decoded frame as it lies, or what it became here: valid until the next call
    // and as long as the frame is. Null planes where the library cannot convert it.
    FrameView Of(const AVFrame& frame);

  private:
    const AVFrame* Scaled(const AVFrame& frame);

    FrameBuffer unpacked_;
    FrameHandle scaled_;
    ScalerHandle scaler_;
};

// Whether frames of that form are planes already, in our order and depth.
bool IsPlanar(AVPixelFormat format);

}  // namespace varnel
