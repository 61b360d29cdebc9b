// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs within rows, compiled once for each instruction set; up to eight pixels at a time.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/render/engine/row_kernels.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "remap/image/interpolation.h"
#include "remap/render/engine/blends-inl.h"
#include "remap/render/engine/span_kernels.h"
#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

// The columns of up to eight pixels of a row read in double precision, whatever it costs: another
// rounding would read another row or pixel.
struct RowPositions {
    HWY_ALIGN std::array<double, lanesAtMost> x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> column;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> row;
    HWY_ALIGN std::array<float, lanesAtMost> part;
};

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
    WithBlend(span.source, [&](auto blend) { DrawChordSpan<decltype(blend)>(span, target); });
}

void CircleSpanImpl(const CircleSpan& span, SpanTarget target) {
    WithBlend(span.source, [&](auto blend) { DrawCircleSpan<decltype(blend)>(span, target); });
}

void StretchSpanImpl(const StretchSpan& span, SpanTarget target) {
    WithBlend(span.source, [&](auto blend) { DrawStretchSpan<decltype(blend)>(span, target); });
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(ChordSpanImpl);
HWY_EXPORT(CircleSpanImpl);
HWY_EXPORT(StretchSpanImpl);

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
