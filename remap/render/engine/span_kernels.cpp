// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The only file that is compiled once for each instruction set; up to eight pixels at a time.

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
#include "remap/render/engine/node_checks.h"
#include "remap/render/engine/span_kernels.h"
#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

// ---- runs between nodes ----

// The polynomial of the fifth degree through six nodes, p[0] to p[5], in pixels from p[2], around a
// whole base.
struct Quintic {
    std::array<float, 6> c;
    std::int32_t base;

    // steps: 1 / 120 over the powers of the nodes' distance in pixels.
    Quintic(const double* p, const std::array<double, 5>& steps) {
        const auto& [h1, h2, h3, h4, h5] = steps;
        const double whole = std::floor(p[2]);
        const double outer = p[1] + p[3];
        base = static_cast<std::int32_t>(whole);
        c[0] = static_cast<float>(p[2] - whole);
        c[1] = static_cast<float>(h1 * (6.0 * p[0] - 60.0 * p[1] - 40.0 * p[2] + 120.0 * p[3] -
                                        30.0 * p[4] + 4.0 * p[5]));
        c[2] = static_cast<float>(h2 * (80.0 * outer - 5.0 * (p[0] + p[4]) - 150.0 * p[2]));
        c[3] = static_cast<float>(h3 * 5.0 *
                                  (10.0 * p[2] - p[0] - p[1] - 14.0 * p[3] + 7.0 * p[4] - p[5]));
        c[4] = static_cast<float>(h4 * (5.0 * (p[0] + p[4]) - 20.0 * outer + 30.0 * p[2]));
        c[5] = static_cast<float>(h5 * (p[5] - p[0] + 5.0 * (p[1] - p[4]) + 10.0 * (p[3] - p[2])));
    }
    VecF At(VecF t) const {
        const Floats d;
        VecF sum = hn::MulAdd(hn::Set(d, c[5]), t, hn::Set(d, c[4]));
        sum = hn::MulAdd(sum, t, hn::Set(d, c[3]));
        sum = hn::MulAdd(sum, t, hn::Set(d, c[2]));
        sum = hn::MulAdd(sum, t, hn::Set(d, c[1]));
        return hn::MulAdd(sum, t, hn::Set(d, c[0]));
    }
};

// Pixels of an image worked out one by one.
HWY_NOINLINE void StoreExact(const NodeSpan& span, const SpanImage& image, int first, int end) {
    for (int n = std::max(first, image.begin); n < std::min(end, image.end); ++n) {
        image.target.Put(n, span.exact(span.context, span, image, n));
    }
}

// Pixels that the nodes around them cannot stand for.
HWY_NOINLINE void StoreOtherwise(const NodeSpan& span, int first, int end) {
    if (first < end && span.closer != nullptr) {
        span.closer(span.context, span, first, end);
        return;
    }
    for (const SpanImage& image : span.images) {
        StoreExact(span, image, first, end);
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
        return span.exact(span.context, span, image, n);
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

inline void WaitForRows(VecI rows, const SourceView& source) {
    if (HWY_UNLIKELY(source.arriving != nullptr)) {
        source.WaitFor(hn::GetLane(hn::MinOfLanes(Ints(), rows)));
    }
}

// One node to the next, in all images.
template <class Blend>
void SampleSegment(const NodeSpan& span, int n, const std::array<double, 5>& steps) {
    const Quintic u(span.u + n, steps);
    const Quintic v(span.v + n, steps);
    const int first = n * span.step;
    const SourceView source = span.source;
    const bool plain = !span.nearest && TakesVectors(source);
    const int lanes = static_cast<int>(hn::Lanes(Floats()));
    const VecF shiftX = hn::Set(Floats(), static_cast<float>(span.mirrorX));
    const VecF shiftY = hn::Set(Floats(), static_cast<float>(span.mirrorY));
    for (int k = 0; k < span.step && first + k < span.count; k += lanes) {
        const VecF t = hn::Iota(Floats(), static_cast<float>(k));
        const VecF offsetX = u.At(t);
        const VecF offsetY = v.At(t);
        for (const SpanImage& image : span.images) {
            const Coordinate x = image.signX > 0 ? Upward(offsetX, span.centreX + u.base)
                                                 : Mirrored(offsetX, span.centreX - u.base, shiftX);
            const Coordinate y = image.signY > 0 ? Upward(offsetY, span.centreY + v.base)
                                                 : Mirrored(offsetY, span.centreY - v.base, shiftY);
            const int pixel = first + k;
            if (plain && pixel >= image.begin && pixel + lanes <= image.end &&
                AllInside(x.whole, y.whole, source)) {
                WaitForRows(y.whole, source);
                Blend::StoreInside(source, x, y, image.target, pixel);
            } else {
                StoreOddLanes(span, image, x, y, pixel, lanes);
            }
        }
    }
}

// The nodes of samples that are finer than bytes lie half as far apart, so that the fourth
// differences of the same map are a sixteenth.
double FinerBy(PixelFormat format) {
    return SampleKindOf(format) == SampleKind::Byte ? 1.0 : 1.0 / 16.0;
}

void NodeSpanImpl(const NodeSpan& span) {
    std::array<double, 5> steps;
    double power = 1.0 / 120.0;
    for (double& step : steps) {
        power /= span.step;
        step = power;
    }
    // Maps with an edge take closer nodes where they bend more.
    const double limit = (span.inside == nullptr ? 0.05 : 0.2) * FinerBy(span.source.format);
    int left = 0;  // the first of the pixels before the n-th node that are still to be taken
    for (int n = 0; n * span.step < span.count; ++n) {
        const int first = n * span.step;
        const int end = std::min(first + span.step, span.count);
        const Shown shown = span.inside == nullptr ? Shown::All : ShownBetween(span.inside + n);
        const bool exact = Lost(span.u + n) || Lost(span.v + n);
        const bool smooth =
            shown == Shown::All && !exact && Smooth(span.u + n, limit) && Smooth(span.v + n, limit);
        if (!smooth && shown != Shown::None) {
            continue;
        }
        StoreOtherwise(span, left, first);
        left = end;
        if (smooth) {
            WithBlend(span.source.format,
                      [&](auto blend) { SampleSegment<decltype(blend)>(span, n, steps); });
        } else {
            StoreBlack(span, first, end);
        }
    }
    StoreOtherwise(span, left, span.count);
}

// ---- runs within rows ----

// The columns of up to eight pixels of a row read in double precision, whatever it costs: another
// rounding would read another row or pixel.
struct RowPositions {
    HWY_ALIGN std::array<double, lanesAtMost> x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> column;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> row;
    HWY_ALIGN std::array<float, lanesAtMost> part;
};

using Doubles = hn::CappedTag<double, lanesAtMost>;
using VecD = hn::Vec<Doubles>;

inline void TakeColumns(VecD x, std::size_t n, RowPositions& at) {
    const Doubles d;
    const VecD whole = hn::Floor(x);
    hn::Store(x, d, at.x.data() + n);
    hn::Store(hn::DemoteTo(hn::Rebind<std::int32_t, Doubles>(), whole),
              hn::Rebind<std::int32_t, Doubles>(), at.column.data() + n);
    hn::Store(hn::DemoteTo(hn::Rebind<float, Doubles>(), hn::Sub(x, whole)),
              hn::Rebind<float, Doubles>(), at.part.data() + n);
}

// A source column from an offset; without interpolation the offset is rounded by itself.
inline VecD Column(double centre, VecD offset, RowReading reading) {
    return hn::Add(hn::Set(Doubles(), centre),
                   reading == RowReading::Nearest ? hn::Round(offset) : offset);
}

// Whether a vector may be read and blended in single precision: all its pixels are on the picture,
// and no position is so close to a whole one that the difference would be lost. Between 128 and 256
// single precision goes in steps of 1.5e-5: with a neighbour one level darker and a part of less
// than half a step (and of what else is rounded on the way) the blend would be the pixel itself,
// but rounded down it has to be the level below. Such parts are common: weak effects, mirrored rows
// and the single-precision pi lead there.
inline bool Plain(VecI column, VecI row, VecF part, const SourceView source) {
    const Floats floats;
    constexpr float least = 1e-5F;
    constexpr float most = 1.0F - least;
    const auto apart =
        hn::And(hn::Gt(part, hn::Set(floats, least)), hn::Lt(part, hn::Set(floats, most)));
    const auto clear = hn::Or(hn::Eq(part, hn::Zero(floats)), apart);
    const bool roundsDown = source.format == PixelFormat::Bgr8;
    return (!roundsDown || hn::AllTrue(floats, clear)) &&
           hn::AllTrue(Ints(), hn::And(Within(column, 0, source.width - 3),
                                       Within(row, 0, source.height - 1)));
}

struct LaneRange {
    std::size_t first, end;
};

// One by one.
HWY_NOINLINE void StoreRowLanes(const SourceView& source, const RowPositions& at, bool nearest,
                                LaneRange range, const SpanTarget& target) {
    const bool outside = AllOutside(hn::Load(Ints(), at.column.data() + range.first),
                                    hn::Load(Ints(), at.row.data() + range.first), source);
    for (std::size_t n = range.first; n < range.end; ++n) {
        PixelLevels colour = noLight;
        if (!outside) {
            colour =
                nearest ? source(at.x[n], at.row[n]) : BlendLinearX(source, at.x[n], at.row[n]);
        }
        target.Put(static_cast<std::ptrdiff_t>(n), colour);
    }
}

// The first pixels of the target, up to eight. Only what is rounded down needs them one by one.
template <class Blend>
HWY_INLINE void StoreRowPixels(const SourceView source, const RowPositions& at, RowReading reading,
                               int count, const SpanTarget& target) {
    const std::size_t lanes = hn::Lanes(Floats());
    const bool oneByOne = reading == RowReading::Pixels && source.format == PixelFormat::Bgr8;
    const bool nearest = reading == RowReading::Nearest;
    const bool fits = !nearest && !oneByOne && TakesVectors(source);
    for (std::size_t n = 0; n < static_cast<std::size_t>(count); n += lanes) {
        const Coordinate column{hn::Load(Ints(), at.column.data() + n),
                                hn::Load(Floats(), at.part.data() + n)};
        const VecI row = hn::Load(Ints(), at.row.data() + n);
        const std::size_t end = std::min(n + lanes, static_cast<std::size_t>(count));
        if (!fits || end - n < lanes || !Plain(column.whole, row, column.part, source)) {
            StoreRowLanes(source, at, nearest, {n, end}, target);
        } else {
            WaitForRows(row, source);
            Blend::StoreBetween(source, column, row, target, static_cast<std::ptrdiff_t>(n));
        }
    }
}

template <class Blend>
void DrawChordSpan(const ChordSpan& span, const SpanTarget& target) {
    const Doubles d;
    RowPositions at;
    at.row.fill(span.row);
    for (int done = 0; done < span.count; done += lanesAtMost) {
        for (std::size_t n = 0; n < lanesAtMost; n += hn::Lanes(d)) {
            const VecD j =
                hn::Iota(d, static_cast<double>(span.first + done) + static_cast<double>(n));
            const VecD u =
                span.plain ? j
                           : hn::Div(hn::Mul(j, hn::Set(d, span.chord)), hn::Set(d, span.radius));
            TakeColumns(Column(span.centreX, hn::Mul(hn::Set(d, span.sign), u), span.reading), n,
                        at);
        }
        StoreRowPixels<Blend>(span.source, at, span.reading,
                              std::min(lanesAtMost, span.count - done), target.Further(done));
    }
}

// The tables of cosines and sines have lanesAtMost entries more than columns.
template <class Blend>
void DrawCircleSpan(const CircleSpan& span, const SpanTarget& target) {
    const Doubles d;
    const VecD radius = hn::Set(d, span.radius);
    RowPositions at;
    for (int done = 0; done < span.count; done += lanesAtMost) {
        const std::size_t i = static_cast<std::size_t>(span.first + done);
        for (std::size_t n = 0; n < lanesAtMost; n += hn::Lanes(d)) {
            const VecD u =
                hn::Mul(hn::Set(d, span.sign), hn::Mul(radius, hn::LoadU(d, span.cosines + i + n)));
            const VecD v = hn::Mul(radius, hn::LoadU(d, span.sines + i + n));
            TakeColumns(Column(span.centreX, u, span.reading), n, at);
            const VecD row = hn::Round(hn::Add(hn::Set(d, span.centreY), v));
            hn::Store(hn::DemoteTo(hn::Rebind<std::int32_t, Doubles>(), row),
                      hn::Rebind<std::int32_t, Doubles>(), at.row.data() + n);
        }
        StoreRowPixels<Blend>(span.source, at, span.reading,
                              std::min(lanesAtMost, span.count - done), target.Further(done));
    }
}

template <class Blend>
void DrawStretchSpan(const StretchSpan& span, const SpanTarget& target) {
    const Doubles d;
    const VecD centre = hn::Set(d, span.centre);
    const VecD decimals = hn::Set(d, 1e8);
    RowPositions at;
    at.row.fill(span.row);
    for (int done = 0; done < span.source.width; done += lanesAtMost) {
        for (std::size_t n = 0; n < lanesAtMost; n += hn::Lanes(d)) {
            const VecD x = hn::Iota(d, static_cast<double>(done) + static_cast<double>(n));
            const VecD away = hn::Mul(hn::Sub(x, centre), hn::Set(d, span.factor));
            const VecD whole = hn::Round(hn::Mul(hn::Add(centre, away), decimals));
            TakeColumns(hn::Div(whole, decimals), n, at);
        }
        StoreRowPixels<Blend>(span.source, at, span.reading,
                              std::min(lanesAtMost, span.source.width - done),
                              target.Further(done));
    }
}

// For a span's kind of pixels.
void ChordSpanImpl(const ChordSpan& span, SpanTarget target) {
    WithBlend(span.source.format,
              [&](auto blend) { DrawChordSpan<decltype(blend)>(span, target); });
}

void CircleSpanImpl(const CircleSpan& span, SpanTarget target) {
    WithBlend(span.source.format,
              [&](auto blend) { DrawCircleSpan<decltype(blend)>(span, target); });
}

void StretchSpanImpl(const StretchSpan& span, SpanTarget target) {
    WithBlend(span.source.format,
              [&](auto blend) { DrawStretchSpan<decltype(blend)>(span, target); });
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(NodeSpanImpl);
HWY_EXPORT(ChordSpanImpl);
HWY_EXPORT(CircleSpanImpl);
HWY_EXPORT(StretchSpanImpl);

void SampleNodeSpan(const NodeSpan& span) {
    HWY_DYNAMIC_DISPATCH(NodeSpanImpl)(span);
}

void SampleChordSpan(const ChordSpan& span, SpanTarget target) {
    HWY_DYNAMIC_DISPATCH(ChordSpanImpl)(span, target);
}

void SampleCircleSpan(const CircleSpan& span, SpanTarget target) {
    HWY_DYNAMIC_DISPATCH(CircleSpanImpl)(span, target);
}

void SampleStretchSpan(const StretchSpan& span, SpanTarget target) {
    HWY_DYNAMIC_DISPATCH(StretchSpanImpl)(span, target);
}

}  // namespace varnel
#endif
