// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs between nodes, compiled once for each instruction set; up to eight pixels at a time.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/render/engine/span_kernels.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

#include "remap/image/interpolation.h"
#include "remap/render/engine/blends-inl.h"
#include "remap/render/engine/exact_blends-inl.h"
#include "remap/render/engine/node_checks.h"
#include "remap/render/engine/node_segments-inl.h"
#include "remap/render/engine/span_kernels.h"
#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

// Pixels that the nodes around them cannot stand for.
HWY_NOINLINE void StoreOtherwise(const NodeSpan& span, int first, int end) {
    if (first < end && span.closer != nullptr) {
        span.closer(span.context, span, first, end);
        return;
    }
    for (; first < end; first += lanesAtMost) {
        const ExactOffsets offsets(span, first, end);
        for (const SpanImage& image : span.images) {
            StoreExact(span, image, offsets);
        }
    }
}

HWY_NOINLINE void StoreBlack(const NodeSpan& span, int first, int end) {
    for (const SpanImage& image : span.images) {
        image.target.Blacken(std::max(first, image.begin), std::min(end, image.end));
    }
}

// Nearest reads have to be those of the exact positions; where a position is close to the middle
// between two pixels the exact one decides.
inline PixelLevels NearestColour(const NodeSpan& span, const SpanImage& image, const Positions& at,
                                 std::size_t lane, int n) {
    const auto close = [](float part) { return std::fabs(part - 0.5F) < 0.001F; };
    if (close(at.partX[lane]) || close(at.partY[lane])) {
        return ExactColour(span, image, span.exact(span.context, n));
    }
    return span.source(at.x[lane] + (at.partX[lane] > 0.5F ? 1 : 0),
                       at.y[lane] + (at.partY[lane] > 0.5F ? 1 : 0));
}

// A vector that is not simply inside: on the border, outside, cut by the image's ends or read
// without interpolation. first is the pixel of lane 0.
HWY_NOINLINE void StoreOddLanes(const NodeSpan& span, const SpanImage& image, const Coordinate& x,
                                const Coordinate& y, int first, int lanes) {
    Positions at;
    hn::Store(x.whole, Ints(), at.x.data());
    hn::Store(y.whole, Ints(), at.y.data());
    hn::Store(x.part, Floats(), at.partX.data());
    hn::Store(y.part, Floats(), at.partY.data());
    const bool outside = AllOutside(x.whole, y.whole, span.source);
    if (outside && !span.nearest) {
        image.target.Blacken(std::max(first, image.begin), std::min(first + lanes, image.end));
        return;
    }
    for (int n = std::max(first, image.begin); n < std::min(first + lanes, image.end); ++n) {
        const auto lane = static_cast<std::size_t>(n - first);
        image.target.Put(
            n, span.nearest
                   ? NearestColour(span, image, at, lane, n)
                   : BlendBilinear(span.source, at.x[lane] + static_cast<double>(at.partX[lane]),
                                   at.y[lane] + static_cast<double>(at.partY[lane])));
    }
}

inline bool AllInside(VecI x, VecI y, const SourceView source) {
    return hn::AllTrue(Ints(),
                       hn::And(Within(x, 0, source.width - 3), Within(y, 0, source.height - 2)));
}

// The pixels of a piece, from the first one of the run on, and their offsets.
struct Piece {
    int first = 0;
    int count = 0;  // in whole vectors
    HWY_ALIGN std::array<float, largestNodeStep> x;
    HWY_ALIGN std::array<float, largestNodeStep> y;
};

template <class Blend>
void StoreInside(const NodeSpan& span, const SpanImage& image, const Piece& piece,
                 const ImageAxis& axisX, const ImageAxis& axisY) {
    const SourceView source = span.source;
    const SpanTarget target = image.target;
    const int lanes = static_cast<int>(hn::Lanes(Floats()));
    for (int k = 0; k < piece.count; k += lanes) {
        const Coordinate x = axisX.At(hn::Load(Floats(), piece.x.data() + k));
        const Coordinate y = axisY.At(hn::Load(Floats(), piece.y.data() + k));
        WaitForRows(y.whole, source);
        Blend::StoreInside(source, x, y, target, piece.first + k);
    }
}

// Some of it may be on the border, outside, cut by the image's ends, or is read without
// interpolation.
template <class Blend>
HWY_NOINLINE void StorePartly(const NodeSpan& span, const SpanImage& image, const Piece& piece,
                              const ImageAxis& axisX, const ImageAxis& axisY) {
    const bool plain = !span.nearest && TakesVectors(span.source);
    const int lanes = static_cast<int>(hn::Lanes(Floats()));
    for (int k = 0; k < piece.count; k += lanes) {
        const Coordinate x = axisX.At(hn::Load(Floats(), piece.x.data() + k));
        const Coordinate y = axisY.At(hn::Load(Floats(), piece.y.data() + k));
        const int pixel = piece.first + k;
        if (plain && pixel >= image.begin && pixel + lanes <= image.end &&
            AllInside(x.whole, y.whole, span.source)) {
            WaitForRows(y.whole, span.source);
            Blend::StoreInside(span.source, x, y, image.target, pixel);
        } else {
            StoreOddLanes(span, image, x, y, pixel, lanes);
        }
    }
}

// Whether all of a piece lies at 0 or more and below the end, in an image with this sign.
inline bool Keeps(const Quintics& offsets, std::size_t n, int sign, double centre, double mirror,
                  double end) {
    const double low = sign > 0 ? offsets.low[n] : mirror - offsets.high[n];
    const double high = sign > 0 ? offsets.high[n] : mirror - offsets.low[n];
    return centre + low >= 0.0 && centre + high < end;
}

// The n-th of some pieces, in all images.
template <class Blend>
void SampleSegment(const NodeSpan& span, int first, const Segments& segments, std::size_t n) {
    Piece piece;
    piece.first = first;
    const int lanes = static_cast<int>(hn::Lanes(Floats()));
    const int pixels = std::min(span.step, span.count - first);
    for (; piece.count < pixels; piece.count += lanes) {
        const VecF t = hn::Iota(Floats(), static_cast<float>(piece.count));
        hn::Store(segments.u.At(n, t), Floats(), piece.x.data() + piece.count);
        hn::Store(segments.v.At(n, t), Floats(), piece.y.data() + piece.count);
    }
    const bool plain = !span.nearest && TakesVectors(span.source);
    for (const SpanImage& image : span.images) {
        const ImageAxis x(image.signX, span.centreX, segments.u.base[n], span.mirrorX);
        const ImageAxis y(image.signY, span.centreY, segments.v.base[n], span.mirrorY);
        if (plain && first >= image.begin && first + piece.count <= image.end &&
            Keeps(segments.u, n, image.signX, span.centreX, span.mirrorX, span.source.width - 2) &&
            Keeps(segments.v, n, image.signY, span.centreY, span.mirrorY, span.source.height - 1)) {
            StoreInside<Blend>(span, image, piece, x, y);
        } else {
            StorePartly<Blend>(span, image, piece, x, y);
        }
    }
}

// The nodes of samples that are finer than bytes lie half as far apart, so that the fourth
// differences of the same map are a sixteenth.
double FinerBy(PixelFormat format) {
    return SampleKindOf(format) == SampleKind::Byte ? 1.0 : 1.0 / 16.0;
}

template <class Blend>
void DrawNodeSpan(const NodeSpan& span) {
    const NodeSteps steps(span.step);
    // Maps with an edge take closer nodes where they bend more.
    const double limit = (span.inside == nullptr ? 0.05 : 0.2) * FinerBy(span.source.format);
    Segments segments;
    int left = 0;  // the first of the pixels before the n-th node that are still to be taken
    for (int n = 0; n * span.step < span.count; ++n) {
        const std::size_t place = static_cast<std::size_t>(n) % Segments::Count();
        if (place == 0) {
            segments.Fit(span.u + n, span.v + n, steps, limit);
        }
        const int first = n * span.step;
        const int end = std::min(first + span.step, span.count);
        const Shown shown = span.inside == nullptr ? Shown::All : ShownBetween(span.inside + n);
        const bool smooth = shown == Shown::All && segments.smooth[place];
        if (!smooth && shown != Shown::None) {
            continue;
        }
        StoreOtherwise(span, left, first);
        left = end;
        if (smooth) {
            SampleSegment<Blend>(span, first, segments, place);
        } else {
            StoreBlack(span, first, end);
        }
    }
    StoreOtherwise(span, left, span.count);
}

void NodeSpanImpl(const NodeSpan& span) {
    WithBlend(span.source, [&](auto blend) { DrawNodeSpan<decltype(blend)>(span); });
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(NodeSpanImpl);

void SampleNodeSpan(const NodeSpan& span) {
    HWY_DYNAMIC_DISPATCH(NodeSpanImpl)(span);
}

}  // namespace varnel
#endif
