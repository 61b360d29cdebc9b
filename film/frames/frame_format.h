// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a film's pictures are made of: planes of brightness and colour as the codecs have them. Rows
// count from the TOP row here, as in all of film/: frames go from a codec to a codec and are never
// turned over. Throws nothing.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/pixel_size.h"

namespace varnel {

// How many samples of brightness share one of colour. Colours is red, green and blue at full size
// (planes green, blue, red, as codecs store them).
enum class ChromaLayout : std::uint8_t { Grey, C420, C422, C444, Colours };

// Where a sample of colour lies among those of brightness: across at the left one or half way
// between two, down at the upper one, half way, or at the lower one.
enum class ChromaSite : std::uint8_t { Left, Centre, TopLeft, Top, BottomLeft, Bottom };

inline constexpr int mostPlanes = 4;

struct FrameFormat {
    PixelSize size{};  // of brightness, pixels
    ChromaLayout chroma = ChromaLayout::C420;
    ChromaSite site = ChromaSite::Left;
    bool alpha = false;      // one more plane of full size, the last
    bool fullRange = false;  // levels from 0 on; else from 16 (of 8 bits) on
    std::uint8_t bits = 8;   // 8 to 16; more than 8 in the low bits of two bytes, native order
    // Code points of ITU-T H.273, which only pass through.
    std::uint8_t primaries = 2;
    std::uint8_t transfer = 2;
    std::uint8_t matrix = 2;

    bool operator==(const FrameFormat& other) const {
        return size.width == other.size.width && size.height == other.size.height &&
               chroma == other.chroma && site == other.site && alpha == other.alpha &&
               fullRange == other.fullRange && bits == other.bits && primaries == other.primaries &&
               transfer == other.transfer && matrix == other.matrix;
    }
};

// Planes with alpha's.
constexpr int PlanesOf(const FrameFormat& format) {
    return (format.chroma == ChromaLayout::Grey ? 1 : 3) + (format.alpha ? 1 : 0);
}

constexpr int BytesPerSample(const FrameFormat& format) {
    return format.bits > 8 ? 2 : 1;
}

constexpr bool IsChromaPlane(const FrameFormat& format, int plane) {
    return (plane == 1 || plane == 2) &&
           (format.chroma == ChromaLayout::C420 || format.chroma == ChromaLayout::C422 ||
            format.chroma == ChromaLayout::C444);
}

// Samples of brightness for one of the plane, across and down: 1 or 2.
constexpr PixelSize SharingOf(const FrameFormat& format, int plane) {
    if (!IsChromaPlane(format, plane) || format.chroma == ChromaLayout::C444) {
        return {1, 1};
    }
    return {2, format.chroma == ChromaLayout::C420 ? 2 : 1};
}

// In samples; half ones are whole ones.
constexpr PixelSize PlaneSize(const FrameFormat& format, int plane) {
    const PixelSize sharing = SharingOf(format, plane);
    return {(format.size.width + sharing.width - 1) / sharing.width,
            (format.size.height + sharing.height - 1) / sharing.height};
}

// What a sample of a plane has where nothing is shown: black, no colour, transparent.
constexpr int BlankLevel(const FrameFormat& format, int plane) {
    if (IsChromaPlane(format, plane)) {
        return 128 << (format.bits - 8);
    }
    const bool isAlpha = format.alpha && plane == PlanesOf(format) - 1;
    return isAlpha || format.fullRange || format.chroma == ChromaLayout::Colours
               ? 0
               : 16 << (format.bits - 8);
}

struct ConstPlane {
    const std::byte* first = nullptr;  // the top row's left sample
    std::ptrdiff_t pitch = 0;          // bytes from row to row, downward
};

struct Plane {
    std::byte* first = nullptr;
    std::ptrdiff_t pitch = 0;
};

// The caller's pixels.
struct FrameView {
    FrameFormat format;
    std::array<ConstPlane, mostPlanes> planes{};
};

struct FrameTarget {
    FrameFormat format;
    std::array<Plane, mostPlanes> planes{};
};

}  // namespace varnel
