// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pixels of runs that are worked out one by one, by the map itself and in double precision: what
// the literal blends give, byte for byte. span_kernels.cpp includes this once for each instruction
// set. Throws nothing.

#if defined(VARNEL_EXACT_BLENDS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_EXACT_BLENDS_INL
#undef VARNEL_EXACT_BLENDS_INL
#else
#define VARNEL_EXACT_BLENDS_INL
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "remap/image/interpolation.h"
#include "remap/render/engine/span_kernels.h"
#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// The colour of an image's pixel whose offset is this.
inline PixelLevels ExactColour(const NodeSpan& span, const SpanImage& image,
                               const SourceOffset& offset) {
    const double column = image.signX > 0 ? offset.u : span.mirrorX - offset.u;
    const double row = span.centreY + (image.signY > 0 ? offset.v : span.mirrorY - offset.v);
    return span.nearest ? span.source(Round(span.centreX + Round(column)), Round(row))
                        : BlendBilinear(span.source, span.centreX + column, row);
}

// Some neighbouring pixels' offsets; those beyond the last one are as the last one's.
struct ExactOffsets {
    int first = 0;
    int count = 0;
    HWY_ALIGN std::array<double, lanesAtMost> u;
    HWY_ALIGN std::array<double, lanesAtMost> v;

    ExactOffsets(const NodeSpan& span, int first_, int end)
        : first(first_), count(std::min(end - first_, lanesAtMost)) {
        SourceOffset offset;
        for (std::size_t n = 0; n < lanesAtMost; ++n) {
            if (n < static_cast<std::size_t>(count)) {
                offset = span.exact(span.context, first + static_cast<int>(n));
            }
            u[n] = offset.u;
            v[n] = offset.v;
        }
    }
};

// A coordinate of a vector: its neighbours and their weights, as BlendBilinear has them.
struct ExactCoordinate {
    VecD lower, upper;
    VecD lowerWeight, upperWeight;

    explicit ExactCoordinate(VecD at) {
        const VecD one = hn::Set(Doubles(), 1.0);
        lower = hn::Floor(at);
        upper = hn::Floor(hn::Add(at, one));
        lowerWeight = hn::Sub(hn::Add(lower, one), at);
        upperWeight = hn::Sub(one, lowerWeight);
    }
    // False for what is no number.
    bool IsWithin(double last) const {
        return hn::AllTrue(Doubles(), hn::And(hn::Ge(lower, hn::Zero(Doubles())),
                                              hn::Le(upper, hn::Set(Doubles(), last))));
    }
};

// Bgr8, from the offset-th on of some pixels, a vector of doubles of them. False where one is not
// all on the photo: then nothing is done.
inline bool BlendExactly(const NodeSpan& span, const SpanImage& image, const ExactOffsets& offsets,
                         std::size_t n, std::int32_t* pixels) {
    const Doubles d;
    const hn::Rebind<std::int32_t, Doubles> ints;
    const VecD u = hn::Load(d, offsets.u.data() + n);
    const VecD v = hn::Load(d, offsets.v.data() + n);
    const ExactCoordinate x(hn::Add(hn::Set(d, static_cast<double>(span.centreX)),
                                    image.signX > 0 ? u : hn::Sub(hn::Set(d, span.mirrorX), u)));
    const ExactCoordinate y(hn::Add(hn::Set(d, static_cast<double>(span.centreY)),
                                    image.signY > 0 ? v : hn::Sub(hn::Set(d, span.mirrorY), v)));
    // The last of a row is read with a byte of the next.
    if (!x.IsWithin(span.source.width - 2) || !y.IsWithin(span.source.height - 1)) {
        return false;
    }
    HWY_ALIGN std::array<std::array<std::int32_t, lanesAtMost>, 4> at;
    const auto keep = [&](std::size_t place, VecD value) {
        hn::Store(hn::DemoteTo(ints, value), ints, at[place].data());
    };
    keep(0, x.lower), keep(1, x.upper), keep(2, y.lower), keep(3, y.upper);
    if (HWY_UNLIKELY(span.source.arriving != nullptr)) {
        const auto rows = at[2].begin();
        span.source.WaitFor(*std::min_element(rows, rows + hn::Lanes(d)));
    }
    HWY_ALIGN std::array<std::array<std::int32_t, lanesAtMost>, 4> words;
    for (std::size_t lane = 0; lane < hn::Lanes(d); ++lane) {
        for (std::size_t neighbour = 0; neighbour < 4; ++neighbour) {
            const std::ptrdiff_t row = at[2 + neighbour / 2][lane];
            const std::ptrdiff_t column = at[neighbour % 2][lane];
            std::memcpy(&words[neighbour][lane],
                        span.source.bits + row * span.source.pitch + 3 * column, 4);
        }
    }
    const std::array weights{
        std::pair(x.lowerWeight, y.lowerWeight), std::pair(x.upperWeight, y.lowerWeight),
        std::pair(x.lowerWeight, y.upperWeight), std::pair(x.upperWeight, y.upperWeight)};
    auto whole = hn::Zero(ints);
    for (const int shift : {16, 8, 0}) {
        const auto part = [&](std::size_t neighbour) {
            const auto word = hn::Load(ints, words[neighbour].data());
            const auto byte = hn::And(hn::ShiftRightSame(word, shift), hn::Set(ints, 255));
            const auto& [across, up] = weights[neighbour];
            return hn::Mul(hn::Mul(hn::PromoteTo(d, byte), across), up);
        };
        const VecD level = hn::Add(hn::Add(hn::Add(part(0), part(1)), part(2)), part(3));
        const auto byte = hn::DemoteTo(ints, hn::Min(level, hn::Set(d, 255.0)));
        whole = hn::Or(hn::ShiftLeft<8>(whole), byte);
    }
    hn::Store(whole, ints, pixels);
    return true;
}

// Those of an image's pixels that it has.
inline void StoreExact(const NodeSpan& span, const SpanImage& image, const ExactOffsets& offsets) {
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> pixels;
    const bool plain = span.source.format == PixelFormat::Bgr8 && span.source.planar == nullptr &&
                       !span.nearest && !image.target.only;
    const int begin = std::max(image.begin - offsets.first, 0);
    const int end = std::min(image.end - offsets.first, offsets.count);
    const int lanes = static_cast<int>(hn::Lanes(Doubles()));
    for (int n = 0; n < end; n += lanes) {
        const auto from = static_cast<std::size_t>(n);
        const bool blended =
            plain && BlendExactly(span, image, offsets, from, pixels.data() + from);
        for (int k = std::max(n, begin); k < std::min(n + lanes, end); ++k) {
            const auto place = static_cast<std::size_t>(k);
            if (blended) {
                std::memcpy(image.target.At(offsets.first + k), &pixels[place], 3);
            } else {
                const SourceOffset offset{offsets.u[place], offsets.v[place]};
                image.target.Put(offsets.first + k, ExactColour(span, image, offset));
            }
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
