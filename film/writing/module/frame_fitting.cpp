// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/frame_fitting.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace varnel {

namespace {

using Row = std::vector<std::uint16_t>;

void ReadRow(const FrameView& frame, int plane, int y, Row& row) {
    const std::size_t n = static_cast<std::size_t>(plane);
    const std::byte* const bytes = frame.planes[n].first + y * frame.planes[n].pitch;
    if (BytesPerSample(frame.format) == 2) {
        std::memcpy(row.data(), bytes, row.size() * 2);
        return;
    }
    std::ranges::transform(bytes, bytes + row.size(), row.begin(),
                           [](std::byte b) { return std::to_integer<std::uint16_t>(b); });
}

void WriteRow(const FrameTarget& target, int plane, int y, const Row& row) {
    const std::size_t n = static_cast<std::size_t>(plane);
    std::byte* const bytes = target.planes[n].first + y * target.planes[n].pitch;
    if (BytesPerSample(target.format) == 2) {
        std::memcpy(bytes, row.data(), row.size() * 2);
        return;
    }
    std::ranges::transform(row, bytes, [](std::uint16_t v) { return static_cast<std::byte>(v); });
}

// Levels that end at 2^bits - 1 end there again; all others are multiplied by a power of two.
void Widen(Row& row, int from, int to, bool toTheEnd) {
    const int more = to - from;
    if (more == 0) {
        return;
    }
    for (std::uint16_t& value : row) {
        const int low = toTheEnd ? value >> (from - more) : 0;
        value = static_cast<std::uint16_t>((value << more) | low);
    }
}

// Where a row of colour at all rows lies among those at half of them: between two, and how much of
// the lower one it has, in quarters.
struct Between {
    int upper;
    int lowerShare;
};

Between PlaceOf(ChromaSite site, int y) {
    const int half = y / 2;
    const bool odd = y % 2 == 1;
    if (site == ChromaSite::TopLeft || site == ChromaSite::Top) {
        return {half, odd ? 2 : 0};
    }
    if (site == ChromaSite::BottomLeft || site == ChromaSite::Bottom) {
        return odd ? Between{half, 0} : Between{half - 1, 2};
    }
    return odd ? Between{half, 1} : Between{half - 1, 3};
}

}  // namespace

FrameFitting::FrameFitting(const FrameFormat& from, const FrameFormat& to) : from_(from), to_(to) {
    if (!(from == to)) {
        buffer_ = FrameBuffer(to);
    }
}

void FrameFitting::FitPlane(const FrameView& frame, int plane) {
    const PixelSize size = PlaneSize(to_, plane);
    const bool isNew = plane >= PlanesOf(from_);
    const bool isColour = IsChromaPlane(to_, plane);
    const int rows = isNew ? 0 : PlaneSize(from_, plane).height;
    const bool isDoubled = !isNew && isColour && rows != size.height;
    Row row(static_cast<std::size_t>(size.width));
    Row lower(row.size());
    for (int y = 0; y < size.height; ++y) {
        if (isNew) {
            std::ranges::fill(row, static_cast<std::uint16_t>(BlankLevel(to_, plane)));
        } else if (!isDoubled) {
            ReadRow(frame, plane, y, row);
        } else {
            const Between place = PlaceOf(from_.site, y);
            ReadRow(frame, plane, std::clamp(place.upper, 0, rows - 1), row);
            ReadRow(frame, plane, std::clamp(place.upper + 1, 0, rows - 1), lower);
            std::ranges::transform(row, lower, row.begin(), [&](int a, int b) {
                return static_cast<std::uint16_t>(
                    (a * (4 - place.lowerShare) + b * place.lowerShare + 2) / 4);
            });
        }
        if (!isNew) {
            Widen(row, from_.bits, to_.bits, !isColour && BlankLevel(from_, plane) == 0);
        }
        WriteRow(buffer_.Target(), plane, y, row);
    }
}

FrameView FrameFitting::Fit(const FrameView& frame) {
    if (from_ == to_) {
        return frame;
    }
    for (int plane = 0; plane < PlanesOf(to_); ++plane) {
        FitPlane(frame, plane);
    }
    return buffer_.View();
}

}  // namespace varnel
