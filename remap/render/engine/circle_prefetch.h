// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Asks for what a piece of circles will be read from before it is read. Along a circle nearly every
// pixel lies in another row of the photo, which no processor foresees: without this most of the
// time goes into waiting for memory. Results do not depend on it. Throws nothing.
#pragma once

#include <hwy/cache_control.h>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <span>
#include <vector>

#include "remap/projection/circle_rows.h"
#include "remap/render/engine/source_view.h"

namespace varnel {

// A radius and the row of the result that shows it.
struct RadiusRow {
    int radius = 0;
    std::int32_t row = 0;
};

class CirclePrefetch {
  public:
    // Of columns by the cosines and sines of their angles, from a column on; all have to outlive
    // this.
    CirclePrefetch(const CircleRows& map, const SourceView& source,
                   const std::vector<double>& cosines, const std::vector<double>& sines)
        : map_(map),
          source_(source),
          cosines_(cosines),
          sines_(sines),
          pixelStep_(
              source.planar != nullptr ? 1 : static_cast<std::ptrdiff_t>(PixelStep(source.format))),
          reach_(static_cast<double>(reachBytes / pixelStep_)) {}

    // The n-th part of what the radii, evenly spaced, read in both halves of columns first to end -
    // 1, counted from that of the first angle. There are as many parts as radii.
    void Ask(std::span<const RadiusRow> radii, std::size_t n, std::size_t first,
             std::size_t end) const {
        if (first >= end) {
            return;
        }
        const std::size_t middle = (first + end) / 2;
        const double across = std::fabs(cosines_[middle]);
        const double along =
            std::fabs(map_.SourceRadius(radii[n].radius)) * AngleOfAColumn(first, end);  // pixels
        if (across < std::fabs(sines_[middle])) {
            // The circles run along rows: each radius has rows of its own.
            AskAt(radii[n].radius, first, end, Step(reach_ / along));
            return;
        }
        // They run across rows, and some neighbouring circles read the same bytes: of these the
        // first and the last one, and each radius a part of the columns.
        const std::size_t group = Step(reach_ / Spacing(radii));
        const std::size_t part = n % group;
        const std::size_t from = first + part * (end - first) / group;
        const std::size_t to = first + (part + 1) * (end - first) / group;
        const std::size_t last = std::min(n - part + group, radii.size()) - 1;
        AskAt(radii[n - part].radius, from, to, Step(1.0 / along));
        if (last != n - part) {
            AskAt(radii[last].radius, from, to, Step(1.0 / along));
        }
    }

  private:
    // Of what neighbouring circles or columns read, so that little of a line of 64 is left out.
    static constexpr std::ptrdiff_t reachBytes = 48;

    static std::size_t Step(double places) {
        constexpr double most = 64.0;
        return static_cast<std::size_t>(std::clamp(places, 1.0, most));
    }
    double AngleOfAColumn(std::size_t first, std::size_t end) const {
        return end - first < 2 ? 0.0
                               : std::hypot(cosines_[first + 1] - cosines_[first],
                                            sines_[first + 1] - sines_[first]);
    }
    // Pixels of the photo from radius to radius.
    double Spacing(std::span<const RadiusRow> radii) const {
        const double whole =
            map_.SourceRadius(radii.back().radius) - map_.SourceRadius(radii.front().radius);
        return std::fabs(whole) / static_cast<double>(std::max<std::size_t>(radii.size(), 2) - 1);
    }
    const std::uint8_t* Row(std::ptrdiff_t y) const {
        return source_.planar != nullptr ? source_.planar->Brightness(source_.height - 1 - y)
                                         : source_.bits + y * source_.pitch;
    }
    void AskAt(int radius, std::size_t first, std::size_t end, std::size_t step) const {
        const double length = map_.SourceRadius(radius);
        const auto centreX = static_cast<double>(map_.Circle().sourceCentre.x);
        const auto centreY = static_cast<double>(map_.Circle().sourceCentre.y);
        for (std::size_t i = first; i < end; i += step) {
            const double y = centreY + length * sines_[i] + 0.5;
            if (!(y >= 0.0 && y < source_.height)) {
                continue;
            }
            const std::uint8_t* const row = Row(static_cast<std::ptrdiff_t>(y));
            for (const double x :
                 {centreX + length * cosines_[i], centreX - length * cosines_[i]}) {
                if (x >= 0.0 && x < source_.width) {
                    hwy::Prefetch(row + static_cast<std::ptrdiff_t>(x) * pixelStep_);
                }
            }
        }
        // Compilers take a function that does nothing but ask for one without any effect, and
        // leave its calls out.
        std::atomic_signal_fence(std::memory_order_acq_rel);
    }

    const CircleRows& map_;
    const SourceView& source_;
    const std::vector<double>& cosines_;
    const std::vector<double>& sines_;
    std::ptrdiff_t pixelStep_;
    double reach_;  // pixels
};

}  // namespace varnel
