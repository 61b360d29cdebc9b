// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/av_formats.h"

#include <algorithm>
#include <array>

namespace varnel {

namespace {

struct Row {
    ChromaLayout chroma;
    bool alpha;
    int bits;
    AVPixelFormat format;
};

using enum ChromaLayout;

constexpr std::array rows{
    Row{Grey, false, 8, AV_PIX_FMT_GRAY8},      Row{Grey, false, 9, AV_PIX_FMT_GRAY9},
    Row{Grey, false, 10, AV_PIX_FMT_GRAY10},    Row{Grey, false, 12, AV_PIX_FMT_GRAY12},
    Row{Grey, false, 14, AV_PIX_FMT_GRAY14},    Row{Grey, false, 16, AV_PIX_FMT_GRAY16},
    Row{C420, false, 8, AV_PIX_FMT_YUV420P},    Row{C420, false, 9, AV_PIX_FMT_YUV420P9},
    Row{C420, false, 10, AV_PIX_FMT_YUV420P10}, Row{C420, false, 12, AV_PIX_FMT_YUV420P12},
    Row{C420, false, 14, AV_PIX_FMT_YUV420P14}, Row{C420, false, 16, AV_PIX_FMT_YUV420P16},
    Row{C422, false, 8, AV_PIX_FMT_YUV422P},    Row{C422, false, 9, AV_PIX_FMT_YUV422P9},
    Row{C422, false, 10, AV_PIX_FMT_YUV422P10}, Row{C422, false, 12, AV_PIX_FMT_YUV422P12},
    Row{C422, false, 14, AV_PIX_FMT_YUV422P14}, Row{C422, false, 16, AV_PIX_FMT_YUV422P16},
    Row{C444, false, 8, AV_PIX_FMT_YUV444P},    Row{C444, false, 9, AV_PIX_FMT_YUV444P9},
    Row{C444, false, 10, AV_PIX_FMT_YUV444P10}, Row{C444, false, 12, AV_PIX_FMT_YUV444P12},
    Row{C444, false, 14, AV_PIX_FMT_YUV444P14}, Row{C444, false, 16, AV_PIX_FMT_YUV444P16},
    Row{Colours, false, 8, AV_PIX_FMT_GBRP},    Row{Colours, false, 9, AV_PIX_FMT_GBRP9},
    Row{Colours, false, 10, AV_PIX_FMT_GBRP10}, Row{Colours, false, 12, AV_PIX_FMT_GBRP12},
    Row{Colours, false, 14, AV_PIX_FMT_GBRP14}, Row{Colours, false, 16, AV_PIX_FMT_GBRP16},
    Row{C420, true, 8, AV_PIX_FMT_YUVA420P},    Row{C420, true, 9, AV_PIX_FMT_YUVA420P9},
    Row{C420, true, 10, AV_PIX_FMT_YUVA420P10}, Row{C420, true, 16, AV_PIX_FMT_YUVA420P16},
    Row{C422, true, 8, AV_PIX_FMT_YUVA422P},    Row{C422, true, 9, AV_PIX_FMT_YUVA422P9},
    Row{C422, true, 10, AV_PIX_FMT_YUVA422P10}, Row{C422, true, 12, AV_PIX_FMT_YUVA422P12},
    Row{C422, true, 16, AV_PIX_FMT_YUVA422P16}, Row{C444, true, 8, AV_PIX_FMT_YUVA444P},
    Row{C444, true, 9, AV_PIX_FMT_YUVA444P9},   Row{C444, true, 10, AV_PIX_FMT_YUVA444P10},
    Row{C444, true, 12, AV_PIX_FMT_YUVA444P12}, Row{C444, true, 16, AV_PIX_FMT_YUVA444P16},
    Row{Colours, true, 8, AV_PIX_FMT_GBRAP},    Row{Colours, true, 10, AV_PIX_FMT_GBRAP10},
    Row{Colours, true, 12, AV_PIX_FMT_GBRAP12}, Row{Colours, true, 16, AV_PIX_FMT_GBRAP16},
};

}  // namespace

AVPixelFormat PixelFormatOf(const FrameFormat& format) {
    const auto* const row = std::ranges::find_if(rows, [&](const Row& r) {
        return r.chroma == format.chroma && r.alpha == format.alpha && r.bits == format.bits;
    });
    return row == rows.end() ? AV_PIX_FMT_NONE : row->format;
}

AVChromaLocation ChromaLocationOf(const FrameFormat& format) {
    if (format.chroma != C420) {
        return AVCHROMA_LOC_UNSPECIFIED;
    }
    switch (format.site) {
        case ChromaSite::Left:
            return AVCHROMA_LOC_LEFT;
        case ChromaSite::Centre:
            return AVCHROMA_LOC_CENTER;
        case ChromaSite::TopLeft:
            return AVCHROMA_LOC_TOPLEFT;
        case ChromaSite::Top:
            return AVCHROMA_LOC_TOP;
        case ChromaSite::BottomLeft:
            return AVCHROMA_LOC_BOTTOMLEFT;
        case ChromaSite::Bottom:
            break;
    }
    return AVCHROMA_LOC_BOTTOM;
}

}  // namespace varnel
