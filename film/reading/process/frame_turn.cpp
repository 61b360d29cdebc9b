// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/frame_turn.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace varnel {

namespace {

int SignOf(std::int32_t number) {
    return number < 0 ? -1 : 1;
}

// In halves of a sample of brightness, from the first that shares the colour.
struct SitePlace {
    int across;
    int down;
};

constexpr SitePlace sites[] = {{0, 1}, {1, 1}, {0, 0}, {1, 0}, {0, 2}, {1, 2}};

ChromaSite TurnedSite(ChromaSite site, const FrameTurn& turn) {
    const SitePlace place = sites[static_cast<std::size_t>(site)];
    // About the middle of the samples that share it.
    const int x = place.across - 1;
    const int y = place.down - 1;
    const SitePlace turned{std::min(turn.a * x + turn.c * y + 1, 1), turn.b * x + turn.d * y + 1};
    for (std::size_t n = 0; n < std::size(sites); ++n) {
        if (sites[n].across == turned.across && sites[n].down == turned.down) {
            return static_cast<ChromaSite>(n);
        }
    }
    return ChromaSite::Centre;
}

bool IsWidened(const FrameFormat& format, const FrameTurn& turn, int plane) {
    return turn.SwapsSides() && format.chroma == ChromaLayout::C422 && IsChromaPlane(format, plane);
}

// Colour of every other sample across becomes one of each: those between are the means of their
// neighbours.
template <class Sample>
void Widen(const ConstPlane& plane, PixelSize shared, PixelSize full, std::vector<Sample>& wide) {
    wide.resize(static_cast<std::size_t>(full.width) * static_cast<std::size_t>(full.height));
    for (int y = 0; y < full.height; ++y) {
        const auto* const from = reinterpret_cast<const Sample*>(plane.first + y * plane.pitch);
        Sample* const to = wide.data() + std::ptrdiff_t{y} * full.width;
        for (int x = 0; x < full.width; ++x) {
            const int next = std::min((x + 1) / 2, shared.width - 1);
            to[x] = static_cast<Sample>((from[x / 2] + from[next] + 1) / 2);
        }
    }
}

// Along the target's rows the source is walked through in steps of this many bytes.
struct Walk {
    const std::byte* first;
    std::ptrdiff_t across;
    std::ptrdiff_t down;
};

template <class Sample>
Walk WalkThrough(const ConstPlane& plane, PixelSize size, const FrameTurn& turn) {
    constexpr auto bytes = static_cast<std::ptrdiff_t>(sizeof(Sample));
    const bool fromRight = turn.a < 0 || turn.b < 0;
    const bool fromBottom = turn.c < 0 || turn.d < 0;
    return {plane.first + (fromRight ? (size.width - 1) * bytes : 0) +
                (fromBottom ? (size.height - 1) * plane.pitch : 0),
            turn.a * bytes + turn.c * plane.pitch, turn.b * bytes + turn.d * plane.pitch};
}

template <class Sample>
void TurnPlane(const ConstPlane& source, PixelSize size, const FrameTurn& turn,
               const Plane& target) {
    const Walk walk = WalkThrough<Sample>(source, size, turn);
    const PixelSize result = turn.SwapsSides() ? PixelSize{size.height, size.width} : size;
    constexpr int side = 32;  // of blocks that stay in the first cache
    for (int top = 0; top < result.height; top += side) {
        const int bottom = std::min(top + side, result.height);
        for (int left = 0; left < result.width; left += side) {
            const int right = std::min(left + side, result.width);
            for (int y = top; y < bottom; ++y) {
                auto* const to = reinterpret_cast<Sample*>(target.first + y * target.pitch);
                const std::byte* const from = walk.first + y * walk.down;
                for (int x = left; x < right; ++x) {
                    to[x] = *reinterpret_cast<const Sample*>(from + x * walk.across);
                }
            }
        }
    }
}

void CopyPlane(const ConstPlane& source, PixelSize size, int sampleBytes, const Plane& target) {
    const auto row = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(sampleBytes);
    for (int y = 0; y < size.height; ++y) {
        std::memcpy(target.first + y * target.pitch, source.first + y * source.pitch, row);
    }
}

template <class Sample>
void TurnPlanes(const FrameView& source, const FrameTurn& turn, const FrameTarget& target) {
    std::vector<Sample> wide;
    for (int n = 0; n < PlanesOf(source.format); ++n) {
        const auto index = static_cast<std::size_t>(n);
        const PixelSize size = PlaneSize(source.format, n);
        const ConstPlane& plane = source.planes[index];
        if (turn.IsNone()) {
            CopyPlane(plane, size, static_cast<int>(sizeof(Sample)), target.planes[index]);
        } else if (IsWidened(source.format, turn, n)) {
            Widen(plane, size, source.format.size, wide);
            const ConstPlane full{
                reinterpret_cast<const std::byte*>(wide.data()),
                source.format.size.width * static_cast<std::ptrdiff_t>(sizeof(Sample))};
            TurnPlane<Sample>(full, source.format.size, turn, target.planes[index]);
        } else {
            TurnPlane<Sample>(plane, size, turn, target.planes[index]);
        }
    }
}

}  // namespace

FrameTurn TurnOf(const std::array<std::int32_t, 9>& matrix) {
    const std::int64_t a = matrix[0];
    const std::int64_t b = matrix[1];
    const std::int64_t c = matrix[3];
    const std::int64_t d = matrix[4];
    if (std::abs(a) + std::abs(d) >= std::abs(b) + std::abs(c)) {
        return {SignOf(matrix[0]), 0, 0, SignOf(matrix[4])};
    }
    return {0, SignOf(matrix[1]), SignOf(matrix[3]), 0};
}

int DegreesOf(const FrameTurn& turn) {
    const bool isMirrored = turn.a * turn.d - turn.b * turn.c < 0;
    const int a = isMirrored ? -turn.a : turn.a;
    const int b = isMirrored ? -turn.b : turn.b;
    if (a != 0) {
        return a > 0 ? 0 : 180;
    }
    return b > 0 ? 90 : 270;
}

FrameFormat TurnedFormat(const FrameFormat& format, const FrameTurn& turn) {
    FrameFormat turned = format;
    if (turn.SwapsSides()) {
        std::swap(turned.size.width, turned.size.height);
        if (format.chroma == ChromaLayout::C422) {
            turned.chroma = ChromaLayout::C444;
        }
    }
    if (!turn.IsNone() && format.chroma == ChromaLayout::C420) {
        turned.site = TurnedSite(format.site, turn);
    }
    return turned;
}

void TurnFrame(const FrameView& source, const FrameTurn& turn, const FrameTarget& target) {
    if (BytesPerSample(source.format) == 1) {
        TurnPlanes<std::uint8_t>(source, turn, target);
    } else {
        TurnPlanes<std::uint16_t>(source, turn, target);
    }
}

}  // namespace varnel
