// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Frames for tests, and the remap of one as plain loops in double precision: what each sample of
// the result has to be, before it is rounded. Rows count from the top row.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "base/rounding.h"
#include "film/frames/frame_buffer.h"
#include "remap/analysis/inverse_mapping.h"

namespace varnel::testing {

inline int SampleOf(const FrameView& frame, int plane, int column, int row) {
    const ConstPlane& from = frame.planes[static_cast<std::size_t>(plane)];
    const int bytes = BytesPerSample(frame.format);
    std::uint16_t sample = 0;
    std::memcpy(&sample, from.first + row * from.pitch + std::ptrdiff_t{column} * bytes,
                static_cast<std::size_t>(bytes));
    return sample;
}

inline void PutSampleOf(const FrameTarget& frame, int plane, int column, int row, int level) {
    const Plane& to = frame.planes[static_cast<std::size_t>(plane)];
    const int bytes = BytesPerSample(frame.format);
    const auto sample = static_cast<std::uint16_t>(level);
    std::memcpy(to.first + row * to.pitch + std::ptrdiff_t{column} * bytes, &sample,
                static_cast<std::size_t>(bytes));
}

template <class Function>
void ForEachSample(const FrameFormat& format, const Function& function) {
    for (int plane = 0; plane < PlanesOf(format); ++plane) {
        const PixelSize size = PlaneSize(format, plane);
        for (int row = 0; row < size.height; ++row) {
            for (int column = 0; column < size.width; ++column) {
                function(plane, column, row);
            }
        }
    }
}

// Every level anywhere: the least that positions are off shows.
inline FrameBuffer Noise(const FrameFormat& format) {
    FrameBuffer frame(format);
    std::uint32_t grain = 1;
    ForEachSample(format, [&](int plane, int column, int row) {
        grain = grain * 1664525U + 1013904223U;
        PutSampleOf(frame.Target(), plane, column, row,
                    static_cast<int>(grain >> (32 - format.bits)));
    });
    return frame;
}

class PlainRemap {
  public:
    PlainRemap(Projection projection, const ImageRecord& image, const FrameView& source)
        : mapping_(projection, image, source.format.size),
          roundsRows_(mapping_.Map().AsSmooth() == nullptr),
          source_(source) {}

    // In the result's own rows from the top; nothing where nothing is shown.
    std::optional<SourcePosition> PlaceOf(int column, int row) const {
        auto place = mapping_.ReadAt(column, mapping_.ResultSize().height - 1 - row);
        if (place) {
            const double y = roundsRows_ ? Round(place->y) : place->y;
            place->y = source_.format.size.height - 1 - y;
        }
        return place;
    }

    double LevelAt(int plane, int column, int row) const {
        const FrameFormat& format = source_.format;
        const PixelSize sharing = SharingOf(format, plane);
        const Lines across = LinesOf(sharing.width, column, IsLeft(format.site) ? 0 : 2);
        const Lines down = LinesOf(sharing.height, row, DownOf(format.site));
        SourcePosition sum;
        int shown = 0;
        for (int y = down.first; y <= down.last; ++y) {
            for (int x = across.first; x <= across.last; ++x) {
                if (const auto place = PlaceOf(x, y)) {
                    sum = {sum.x + place->x, sum.y + place->y};
                    ++shown;
                }
            }
        }
        if (shown == 0) {
            return BlankLevel(format, plane);
        }
        const SourcePosition mean{sum.x / shown, sum.y / shown};
        const double share =
            ShareOf(mean.x, format.size.width) * ShareOf(mean.y, format.size.height);
        const double blank = BlankLevel(format, plane);
        const double level = Blend(plane, (mean.x - across.Middle()) / sharing.width,
                                   (mean.y - down.Middle()) / sharing.height);
        return blank + (level - blank) * share;
    }

  private:
    // Samples of brightness that stand for one of the plane, and where they begin.
    struct Lines {
        int first, last, start;
        double Middle() const { return (first + last) / 2.0 - start; }
    };
    static bool IsLeft(ChromaSite site) {
        return site == ChromaSite::Left || site == ChromaSite::TopLeft ||
               site == ChromaSite::BottomLeft;
    }
    static int DownOf(ChromaSite site) {
        return site == ChromaSite::TopLeft || site == ChromaSite::Top         ? 0
               : site == ChromaSite::BottomLeft || site == ChromaSite::Bottom ? 1
                                                                              : 2;
    }
    // which: the first, the second, both.
    static Lines LinesOf(int sharing, int n, int which) {
        if (sharing == 1) {
            return {n, n, n};
        }
        const int start = 2 * n;
        return {start + (which == 1 ? 1 : 0), start + (which == 0 ? 0 : 1), start};
    }
    static double ShareOf(double at, int size) {
        return std::clamp(std::min(at + 1.0, size - at), 0.0, 1.0);
    }
    double Blend(int plane, double x, double y) const {
        const PixelSize size = PlaneSize(source_.format, plane);
        const auto at = [&](double column, double row) {
            return SampleOf(source_, plane,
                            static_cast<int>(std::clamp(column, 0.0, size.width - 1.0)),
                            static_cast<int>(std::clamp(row, 0.0, size.height - 1.0)));
        };
        const double left = std::floor(x);
        const double top = std::floor(y);
        const double wx = x - left;
        const double wy = y - top;
        return (at(left, top) * (1.0 - wx) + at(left + 1, top) * wx) * (1.0 - wy) +
               (at(left, top + 1) * (1.0 - wx) + at(left + 1, top + 1) * wx) * wy;
    }

    InverseMapping mapping_;
    bool roundsRows_;
    FrameView source_;
};

}  // namespace varnel::testing
