// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/encoder_table.h"

#include <algorithm>
#include <array>
#include <vector>

#include "film/writing/module/av_formats.h"

namespace varnel {

namespace {

constexpr char presets[] =
    "ultrafast superfast veryfast faster fast medium slow slower veryslow placebo";

// It would tell of itself on standard error.
constexpr std::array quietX265{Setting{"x265-params", "log-level=error"}};
constexpr std::array rowThreads{Setting{"row-mt", "1"}};
// Every frame for itself, and damage is found.
constexpr std::array archive{Setting{"level", "3"}, Setting{"slicecrc", "1"}, Setting{"g", "1"}};

constexpr std::array rows{
    EncoderRow{FilmCodec::H264, "libx264", "preset", presets, 51, true, false, {}},
    EncoderRow{FilmCodec::H265, "libx265", "preset", presets, 51, true, false, quietX265},
    EncoderRow{FilmCodec::Av1, "libsvtav1", "preset", "0 to 13", 63, true, true, {}},
    EncoderRow{FilmCodec::Av1, "libaom-av1", "cpu-used", "0 to 8", 63, true, false, rowThreads},
    EncoderRow{FilmCodec::Vp9, "libvpx-vp9", "cpu-used", "0 to 8", 63, true, false, rowThreads},
    EncoderRow{FilmCodec::Ffv1, "ffv1", nullptr, nullptr, -1, true, false, archive},
    EncoderRow{FilmCodec::ProRes, "prores_ks", nullptr, nullptr, -1, false, false, {}},
};

std::vector<ChromaLayout> LayoutsFor(ChromaLayout chroma) {
    switch (chroma) {
        case ChromaLayout::Grey:
            return {ChromaLayout::Grey, ChromaLayout::C420, ChromaLayout::C422};
        case ChromaLayout::C420:
            return {ChromaLayout::C420, ChromaLayout::C422};
        case ChromaLayout::C422:
        case ChromaLayout::C444:
        case ChromaLayout::Colours:
            break;
    }
    return {chroma};
}

bool Takes(const AVCodec& encoder, AVPixelFormat format) {
    if (format == AV_PIX_FMT_NONE || encoder.pix_fmts == nullptr) {
        return false;
    }
    for (const AVPixelFormat* one = encoder.pix_fmts; *one != AV_PIX_FMT_NONE; ++one) {
        if (*one == format) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::span<const EncoderRow> EncoderRows() {
    return rows;
}

const EncoderRow* FindEncoder(FilmCodec codec) {
    const auto* const row = std::ranges::find_if(rows, [&](const EncoderRow& r) {
        return r.codec == codec && avcodec_find_encoder_by_name(r.name) != nullptr;
    });
    return row == rows.end() ? nullptr : &*row;
}

std::optional<FrameFormat> FittingFormat(const AVCodec& encoder, const FrameFormat& format) {
    for (const ChromaLayout chroma : LayoutsFor(format.chroma)) {
        for (const int bits : {8, 9, 10, 12, 14, 16}) {
            FrameFormat wider = format;
            wider.chroma = chroma;
            wider.bits = static_cast<std::uint8_t>(bits);
            if (bits >= format.bits && Takes(encoder, PixelFormatOf(wider))) {
                return wider;
            }
        }
    }
    return std::nullopt;
}

}  // namespace varnel
