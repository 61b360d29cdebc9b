// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/frame_planes.h"

#include <bit>
#include <new>

namespace varnel {

namespace {

const AVPixFmtDescriptor& DescriptionOf(AVPixelFormat format) {
    return *av_pix_fmt_desc_get(format);
}

bool Has(const AVPixFmtDescriptor& form, std::uint64_t flag) {
    return (form.flags & flag) != 0;
}

bool IsColours(const AVPixFmtDescriptor& form) {
    return Has(form, AV_PIX_FMT_FLAG_RGB);
}

bool HasAlpha(const AVPixFmtDescriptor& form) {
    return Has(form, AV_PIX_FMT_FLAG_ALPHA);
}

bool HasColour(const AVPixFmtDescriptor& form) {
    return form.nb_components >= 3;
}

// Samples of one depth in bytes of their own, whatever their order: what planes hold without loss.
bool CanBeUnpacked(const AVPixFmtDescriptor& form) {
    constexpr std::uint64_t others = AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BITSTREAM |
                                     AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BAYER |
                                     AV_PIX_FMT_FLAG_FLOAT;
    const bool isShared = form.log2_chroma_w <= 1 && form.log2_chroma_h <= form.log2_chroma_w;
    if (Has(form, others) || !isShared) {
        return false;
    }
    const int depth = form.comp[0].depth;
    for (int n = 0; n < form.nb_components; ++n) {
        const AVComponentDescriptor& one = form.comp[n];
        const int word = depth > 8 ? 16 : 8;
        if (one.depth != depth || one.depth + one.shift > word || one.step % (word / 8) != 0 ||
            one.offset % (word / 8) != 0) {
            return false;
        }
    }
    return depth >= 8 && depth <= 16;
}

// Which of a form's components is our plane: colours stand as green, blue, red.
int ComponentOf(const AVPixFmtDescriptor& form, int plane) {
    const bool isAlpha = HasAlpha(form) && plane == form.nb_components - 1;
    return IsColours(form) && !isAlpha ? (plane + 1) % 3 : plane;
}

// The form that the library makes of one that cannot be unpacked.
AVPixelFormat NearestOf(const AVPixFmtDescriptor& form) {
    const bool isDeep = form.comp[0].depth > 8 || form.comp[1].depth > 8;
    if (Has(form, AV_PIX_FMT_FLAG_BAYER)) {
        return isDeep ? AV_PIX_FMT_RGB48 : AV_PIX_FMT_RGB24;
    }
    if (!HasColour(form) && !Has(form, AV_PIX_FMT_FLAG_PAL)) {
        return isDeep ? AV_PIX_FMT_GRAY16 : AV_PIX_FMT_GRAY8;
    }
    if (IsColours(form) || Has(form, AV_PIX_FMT_FLAG_PAL)) {
        if (HasAlpha(form)) {
            return isDeep ? AV_PIX_FMT_GBRAP16 : AV_PIX_FMT_GBRAP;
        }
        return isDeep ? AV_PIX_FMT_GBRP16 : AV_PIX_FMT_GBRP;
    }
    if (form.log2_chroma_w >= 1 && form.log2_chroma_h >= 1) {
        return AV_PIX_FMT_YUV420P;
    }
    if (form.log2_chroma_w >= 1) {
        return AV_PIX_FMT_YUV422P;
    }
    switch (form.comp[0].depth) {
        case 8:
            return AV_PIX_FMT_YUV444P;
        case 10:
            return AV_PIX_FMT_YUV444P10;
        case 12:
            return AV_PIX_FMT_YUV444P12;
        default:
            return AV_PIX_FMT_YUV444P16;
    }
}

ChromaSite SiteOf(AVChromaLocation location) {
    switch (location) {
        case AVCHROMA_LOC_CENTER:
            return ChromaSite::Centre;
        case AVCHROMA_LOC_TOPLEFT:
            return ChromaSite::TopLeft;
        case AVCHROMA_LOC_TOP:
            return ChromaSite::Top;
        case AVCHROMA_LOC_BOTTOMLEFT:
            return ChromaSite::BottomLeft;
        case AVCHROMA_LOC_BOTTOM:
            return ChromaSite::Bottom;
        default:
            return ChromaSite::Left;
    }
}

// The forms with a j, of one bit and of floating point are of full range, whatever else is said.
bool IsFullRange(const AVFrame& frame) {
    switch (frame.format) {
        case AV_PIX_FMT_YUVJ420P:
        case AV_PIX_FMT_YUVJ422P:
        case AV_PIX_FMT_YUVJ444P:
        case AV_PIX_FMT_YUVJ440P:
        case AV_PIX_FMT_YUVJ411P:
        case AV_PIX_FMT_MONOBLACK:
        case AV_PIX_FMT_MONOWHITE:
        case AV_PIX_FMT_GRAYF32LE:
        case AV_PIX_FMT_GRAYF32BE:
            return true;
        default:
            return frame.color_range == AVCOL_RANGE_JPEG ||
                   IsColours(DescriptionOf(static_cast<AVPixelFormat>(frame.format)));
    }
}

std::uint8_t CodePoint(int number) {
    return number >= 0 && number <= 255 ? static_cast<std::uint8_t>(number) : 2;
}

FrameFormat FormatOf(const AVFrame& frame) {
    const AVPixFmtDescriptor& form = DescriptionOf(static_cast<AVPixelFormat>(frame.format));
    FrameFormat format;
    format.size = {frame.width, frame.height};
    if (!HasColour(form)) {
        format.chroma = ChromaLayout::Grey;
    } else if (IsColours(form)) {
        format.chroma = ChromaLayout::Colours;
    } else if (form.log2_chroma_w == 0) {
        format.chroma = ChromaLayout::C444;
    } else {
        format.chroma = form.log2_chroma_h == 0 ? ChromaLayout::C422 : ChromaLayout::C420;
    }
    format.site = SiteOf(frame.chroma_location);
    format.alpha = HasAlpha(form);
    format.fullRange = IsFullRange(frame);
    format.bits = static_cast<std::uint8_t>(form.comp[0].depth);
    format.primaries = CodePoint(frame.color_primaries);
    format.transfer = CodePoint(frame.color_trc);
    format.matrix = CodePoint(frame.colorspace);
    return format;
}

const std::byte* BytesOf(const AVFrame& frame, int plane) {
    return reinterpret_cast<const std::byte*>(frame.data[plane]);
}

void UnpackBytes(const AVFrame& frame, const AVComponentDescriptor& one, PixelSize size,
                 const Plane& target) {
    for (int y = 0; y < size.height; ++y) {
        const std::uint8_t* from =
            frame.data[one.plane] + std::ptrdiff_t{y} * frame.linesize[one.plane] + one.offset;
        std::byte* const to = target.first + y * target.pitch;
        for (int x = 0; x < size.width; ++x, from += one.step) {
            to[x] = std::byte{*from};
        }
    }
}

std::uint16_t Swapped(std::uint16_t word) {
    return static_cast<std::uint16_t>(word >> 8 | word << 8);
}

void UnpackWords(const AVFrame& frame, const AVComponentDescriptor& one, PixelSize size,
                 const Plane& target) {
    const AVPixFmtDescriptor& form = DescriptionOf(static_cast<AVPixelFormat>(frame.format));
    const bool isSwapped =
        Has(form, AV_PIX_FMT_FLAG_BE) != (std::endian::native == std::endian::big);
    const unsigned mask = (1U << one.depth) - 1;
    for (int y = 0; y < size.height; ++y) {
        const std::uint8_t* from =
            frame.data[one.plane] + std::ptrdiff_t{y} * frame.linesize[one.plane] + one.offset;
        auto* const to = reinterpret_cast<std::uint16_t*>(target.first + y * target.pitch);
        for (int x = 0; x < size.width; ++x, from += one.step) {
            const auto word = *reinterpret_cast<const std::uint16_t*>(from);
            const unsigned level = isSwapped ? Swapped(word) : word;
            to[x] = static_cast<std::uint16_t>(level >> one.shift & mask);
        }
    }
}

}  // namespace

bool IsPlanar(AVPixelFormat format) {
    const AVPixFmtDescriptor& form = DescriptionOf(format);
    if (!CanBeUnpacked(form)) {
        return false;
    }
    const int bytes = form.comp[0].depth > 8 ? 2 : 1;
    if (bytes > 1 && Has(form, AV_PIX_FMT_FLAG_BE) != (std::endian::native == std::endian::big)) {
        return false;
    }
    for (int plane = 0; plane < form.nb_components; ++plane) {
        const AVComponentDescriptor& one = form.comp[ComponentOf(form, plane)];
        if (one.plane != plane || one.step != bytes || one.offset != 0 || one.shift != 0) {
            return false;
        }
    }
    return true;
}

const AVFrame* FramePlanes::Scaled(const AVFrame& frame) {
    const auto format = static_cast<AVPixelFormat>(frame.format);
    const AVPixelFormat nearest = NearestOf(DescriptionOf(format));
    // No side is scaled; where colour is, then to the nearest.
    scaler_.reset(sws_getCachedContext(
        scaler_.release(), frame.width, frame.height, format, frame.width, frame.height, nearest,
        SWS_POINT | SWS_FULL_CHR_H_INT | SWS_ACCURATE_RND, nullptr, nullptr, nullptr));
    scaled_.reset(av_frame_alloc());
    if (!scaler_ || !scaled_) {
        return nullptr;
    }
    // Levels stay what they are.
    const int range = IsFullRange(frame) ? 1 : 0;
    const int* const matrix = sws_getCoefficients(frame.colorspace);
    sws_setColorspaceDetails(scaler_.get(), matrix, range, matrix, range, 0, 1 << 16, 1 << 16);
    av_frame_copy_props(scaled_.get(), &frame);
    scaled_->format = nearest;
    scaled_->width = frame.width;
    scaled_->height = frame.height;
    const bool isMade = av_frame_get_buffer(scaled_.get(), 0) >= 0 &&
                        sws_scale(scaler_.get(), frame.data, frame.linesize, 0, frame.height,
                                  scaled_->data, scaled_->linesize) == frame.height;
    return isMade ? scaled_.get() : nullptr;
}

FrameView FramePlanes::Of(const AVFrame& decoded) {
    const auto decodedAs = static_cast<AVPixelFormat>(decoded.format);
    if (av_pix_fmt_desc_get(decodedAs) == nullptr) {
        return {};
    }
    const AVFrame* const frame =
        CanBeUnpacked(DescriptionOf(decodedAs)) ? &decoded : Scaled(decoded);
    if (frame == nullptr) {
        return {};
    }
    FrameFormat format = FormatOf(*frame);
    format.fullRange = frame == &decoded ? format.fullRange : IsFullRange(decoded);
    FrameView view{.format = format};
    if (IsPlanar(static_cast<AVPixelFormat>(frame->format))) {
        for (int n = 0; n < PlanesOf(format); ++n) {
            view.planes[static_cast<std::size_t>(n)] = {BytesOf(*frame, n), frame->linesize[n]};
        }
        return view;
    }
    if (unpacked_.Format() != format || unpacked_.View().planes[0].first == nullptr) {
        unpacked_ = FrameBuffer(format);
    }
    const AVPixFmtDescriptor& form = DescriptionOf(static_cast<AVPixelFormat>(frame->format));
    for (int n = 0; n < PlanesOf(format); ++n) {
        const AVComponentDescriptor& one = form.comp[ComponentOf(form, n)];
        const auto unpack = format.bits > 8 ? &UnpackWords : &UnpackBytes;
        unpack(*frame, one, PlaneSize(format, n),
               unpacked_.Target().planes[static_cast<std::size_t>(n)]);
    }
    return unpacked_.View();
}

}  // namespace varnel
