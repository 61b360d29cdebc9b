// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs of output pixels through a smooth map: along a row for full-size pictures, along a column
// for previews, which report progress at each column. WorkOutNodes throws std::bad_alloc, the rest
// nothing.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "remap/projection/smooth_map.h"
#include "remap/render/engine/span_kernels.h"

namespace varnel {

// The nodes of a run of count pixels that starts at the map position (x, y).
struct ControlPointLine {
    int x = 0, y = 0;
    int count = 0;
    int step = largestNodeStep;
    std::vector<double> u{}, v{};
    std::vector<double> inside{};  // empty for a map without an edge
};

// The smaller the picture the stronger its lines bend from pixel to pixel. Samples that are finer
// than bytes take finer positions, too.
inline int NodeStepFor(PixelSize picture, PixelFormat format = PixelFormat::Bgr8) {
    const int longest = std::max(picture.width, picture.height);
    const int step = longest < 2000 ? 16 : longest < 4000 ? 32 : largestNodeStep;
    return SampleKindOf(format) == SampleKind::Byte ? step : step / 2;
}

// Closer than that it is no longer worth the while.
inline constexpr int closestNodeStep = 8;

// Fills in the nodes; the vectors are reused.
inline void WorkOutNodes(const SmoothNodes& nodes, ControlPointLine& line) {
    const int segments = (line.count + line.step - 1) / line.step;
    const auto size = static_cast<std::size_t>(segments + 1 + 2 * nodesAround);
    line.u.resize(size + nodesBeyond);
    line.v.resize(size + nodesBeyond);
    line.inside.resize(nodes.HasEdge() ? size : 0);
    nodes.Fill({line.x, line.y, line.step},
               {std::span(line.u).first(size), std::span(line.v).first(size), line.inside});
}

// A run's exact offsets, by the map itself.
struct ExactLine {
    const SmoothMap& map;
    const ControlPointLine& line;
    const SmoothNodes& nodes;

    static SourceOffset At(const void* context, int n) {
        const auto& self = *static_cast<const ExactLine*>(context);
        return self.map.At(self.line.x + n, self.line.y);
    }
    // Nodes less far apart: at an edge and where the map bends.
    static void Closer(const void* context, const NodeSpan& span, int first, int end) {
        const auto& self = *static_cast<const ExactLine*>(context);
        ControlPointLine part{self.line.x + first, self.line.y, end - first,
                              std::max(span.step / 4, closestNodeStep)};
        WorkOutNodes(self.nodes, part);
        const ExactLine exact{self.map, part, self.nodes};
        for (const SpanImage& image : span.images) {
            SpanImage its = image;
            its.target.first = image.target.At(first);
            its.begin = image.begin - first;
            its.end = std::min(image.end - first, part.count);
            NodeSpan close = exact.Span(span.source, span.nearest, {&its, 1});
            SampleNodeSpan(close);
        }
    }
    // The run of all its pixels into the images; for as long as this and they live.
    NodeSpan Span(const SourceView& source, bool nearest, std::span<const SpanImage> images) const {
        return {source,
                line.u.data(),
                line.v.data(),
                line.inside.empty() ? nullptr : line.inside.data(),
                line.step,
                line.count,
                map.SourceCentre().x,
                map.SourceCentre().y,
                map.MirrorShift().x,
                map.MirrorShift().y,
                nearest,
                &ExactLine::At,
                line.inside.empty() || line.step <= closestNodeStep ? nullptr : &ExactLine::Closer,
                this,
                images};
    }
};

// The part of a run of count pixels from x on, one further each time in direction step (1 or -1),
// that lies within 0 and size - 1: pixels begin to end - 1.
struct Clip {
    int begin = 0;
    int end = 0;
    static Clip Of(std::int32_t x, int step, int count, std::int32_t size) {
        const int begin = step > 0 ? -x : x - (size - 1);
        const int end = step > 0 ? size - x : x + 1;
        return {std::max(begin, 0), std::min(end, count)};
    }
};

}  // namespace varnel
