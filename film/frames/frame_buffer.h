// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A frame with memory of its own. Throws std::bad_alloc.
#pragma once

#include <memory>

#include "film/frames/frame_format.h"

namespace varnel {

class FrameBuffer {
  public:
    FrameBuffer() = default;
    // Not filled. Rows begin at multiples of 64 bytes, and 64 more bytes behind the last may be
    // read.
    explicit FrameBuffer(const FrameFormat& format);

    const FrameFormat& Format() const { return target_.format; }
    const FrameTarget& Target() const { return target_; }
    FrameView View() const;
    // All of it as where nothing is shown.
    void Blank();

  private:
    struct Free {
        void operator()(std::byte* bytes) const;
    };
    std::unique_ptr<std::byte, Free> bytes_;
    std::size_t length_ = 0;
    FrameTarget target_;
};

}  // namespace varnel
