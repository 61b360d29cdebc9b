// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The inner loops of the engine: runs of neighbouring output pixels from the source. Their vector
// code, in span_kernels.cpp and row_kernels.cpp, chooses the instruction set when it runs.
// Positions are in pixels of the source, rows counted from the bottom row. Throws nothing.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

#include "remap/projection/smooth_map.h"
#include "remap/render/engine/source_view.h"

namespace varnel {

// One of the mirror images that a run is written as: pixels begin to end - 1, read at the centre
// plus u and v, or with a negative sign minus them plus the run's mirrorX and mirrorY.
struct SpanImage {
    int signX = 1;
    int signY = 1;
    SpanTarget target;
    int begin = 0;
    int end = 0;
};

// Places after the last node that are read as well, with whole vectors, whatever is there.
inline constexpr std::size_t nodesBeyond = 7;

// A run whose source offsets (u, v) from the centre are known at nodes; between them they follow a
// polynomial.
struct NodeSpan {
    SourceView source;
    const double* u =
        nullptr;  // nodesAround before the first pixel's node, then one every step pixels
    const double* v = nullptr;
    const double* inside = nullptr;  // see NodeValues; null: shown everywhere
    int step = largestNodeStep;
    int count = 0;  // pixels
    std::int32_t centreX = 0, centreY = 0;
    double mirrorX = 0.0, mirrorY = 0.0;
    bool nearest = false;
    // The offset of pixel n worked out without nodes: where they are not smooth, and where a
    // nearest read is too close to call.
    SourceOffset (*exact)(const void* context, int n) = nullptr;
    // Takes pixels first to end - 1 by closer nodes; null: they are worked out without nodes.
    void (*closer)(const void* context, const NodeSpan& span, int first, int end) = nullptr;
    const void* context = nullptr;
    std::span<const SpanImage> images;
};

void SampleNodeSpan(const NodeSpan& span);

// How a run within a row is read: a vector at a time in single precision where that is good enough,
// every pixel by itself in double precision, or without interpolation.
enum class RowReading { Vectors, Pixels, Nearest };

// For columns a step apart on the source. Where they fall on halves, thirds, fifths ... again and
// again, as those of the Varnel row 3/5 up a whole radius do, many blends are whole levels but for
// the last bit, which takes double precision.
inline RowReading ReadingFor(double step) {
    constexpr double all = 3603600.0;  // what 1 to 16, 25, 50 and 100 divide
    const bool onFractions = std::fabs(step * all - std::nearbyint(step * all)) < 1e-3;
    return onFractions ? RowReading::Pixels : RowReading::Vectors;
}

// A run of columns of the Varnel projection: column j reads centreX + sign * (j * chord / radius)
// of one row; with plain set, centreX + sign * j.
struct ChordSpan {
    SourceView source;
    int first = 0;
    int count = 0;
    double centreX = 0.0;
    double sign = 1.0;
    double chord = 0.0, radius = 1.0;
    bool plain = false;
    std::int32_t row = 0;
    RowReading reading = RowReading::Vectors;
};

void SampleChordSpan(const ChordSpan& span, SpanTarget target);

// A run of columns of the Horizon projection: the one with the angle i reads centreX + sign *
// radius * cosines[i] in the row nearest to centreY + radius * sines[i].
struct CircleSpan {
    SourceView source;
    int first = 0;
    int count = 0;
    double centreX = 0.0, centreY = 0.0;
    double sign = 1.0;
    double radius = 0.0;
    const double* cosines = nullptr;
    const double* sines = nullptr;
    RowReading reading = RowReading::Vectors;
};

void SampleCircleSpan(const CircleSpan& span, SpanTarget target);

// A whole row of the stretch: column x reads centre + (x - centre) * factor of the same row, to
// eight decimals.
struct StretchSpan {
    SourceView source;
    double centre = 0.0;
    double factor = 1.0;
    std::int32_t row = 0;
    RowReading reading = RowReading::Vectors;
};

void SampleStretchSpan(const StretchSpan& span, SpanTarget target);

}  // namespace varnel
