// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the libraries name what a frame is made of. Throws nothing.
#pragma once

#include "film/frames/film_info.h"
#include "film/writing/module/av_headers.h"

namespace varnel {

// AV_PIX_FMT_NONE for what they have no name for.
AVPixelFormat PixelFormatOf(const FrameFormat& format);

AVChromaLocation ChromaLocationOf(const FrameFormat& format);

inline AVRational RationalOf(const TimeBase& base) {
    return {base.num, base.den};
}

inline std::int64_t TimeOf(std::int64_t time) {
    return time == noTime ? AV_NOPTS_VALUE : time;
}

}  // namespace varnel
