// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Compiled once for each instruction set.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/render/engine/fine/fine_kernels.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "remap/render/engine/fine/fine_kernel.h"
#include "remap/render/engine/fine/fine_kernels.h"
#include "remap/render/engine/fine/pixel_vectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

// ---- pixels where nothing shrinks ----

// The sharp kernel's places and weights for some pixels: the pixel to the lower left of a position,
// and the weights of four neighbours, of which that is the second.
struct Sharp {
    HWY_ALIGN std::array<std::int32_t, pixelsAhead> x, y;
    HWY_ALIGN std::array<float, 4 * pixelsAhead> weightsX, weightsY;
};

using Doubles = hn::CappedTag<double, 4>;

// Whole parts, and what is left in single precision.
inline void Split(const double* positions, std::int32_t* whole, float* part) {
    const Doubles d;
    const hn::Rebind<std::int32_t, Doubles> ints;
    const hn::Rebind<float, Doubles> floats;
    for (std::size_t n = 0; n < pixelsAhead; n += hn::Lanes(d)) {
        const auto position = hn::LoadU(d, positions + n);
        const auto floor = hn::Floor(position);
        hn::StoreU(hn::DemoteTo(ints, floor), ints, whole + n);
        hn::StoreU(hn::DemoteTo(floats, hn::Sub(position, floor)), floats, part + n);
    }
}

// The parts of the kernel, at distances that are not negative.
inline Pixel InnerAt(const CubicKernel<float>& kernel, const Pixel& t) {
    return (Every(kernel.inner3) * t + Every(kernel.inner2)) * t * t + Every(kernel.inner0);
}
inline Pixel OuterAt(const CubicKernel<float>& kernel, const Pixel& t) {
    const Pixel bend = Every(kernel.outer3) * t + Every(kernel.outer2);
    return (bend * t + Every(kernel.outer1)) * t + Every(kernel.outer0);
}

// The weights of the four neighbours for parts of 0 to 1 and scales, four after the other for each
// pixel. Of kernels with B = 0 the outer part is C times that for C = 1.
inline void WeighSharp(const float* parts, const float* scales, float* weights) {
    constexpr auto none = CubicKernel<float>::Of(0.0F, 0.0F);
    constexpr auto full = CubicKernel<float>::Of(0.0F, 1.0F);
    const Pixel one = Every(1.0F);
    for (std::size_t n = 0; n < pixelsAhead; n += 4) {
        const Pixel part = LoadPixel(parts + n);
        const Pixel rest = one - part;
        const Pixel stretch = (one - LoadPixel(scales + n)) * Every(sharpnessByScale);
        const Pixel sharpness =
            Every(evenSharpness) + Every(moreSharpness) * Least(Most(stretch, Every(0.0F)), one);
        const auto inner = [&](const Pixel& t) {
            return InnerAt(none, t) + sharpness * (t * t * (one - t));
        };
        StoreInTurn({sharpness * OuterAt(full, part + one), inner(part), inner(rest),
                     sharpness * OuterAt(full, rest + one)},
                    weights + 4 * n);
    }
}

inline void PrepareSharp(const FineRun& run, int first, Sharp& sharp) {
    HWY_ALIGN std::array<float, pixelsAhead> parts;
    Split(run.x + first, sharp.x.data(), parts.data());
    WeighSharp(parts.data(), run.scaleX + first, sharp.weightsX.data());
    Split(run.y + first, sharp.y.data(), parts.data());
    WeighSharp(parts.data(), run.scaleY + first, sharp.weightsY.data());
}

// The range of the four pixels from the corner on.
struct Range {
    Pixel low, high;

    static Range OfFour(const float* corner, std::ptrdiff_t pitch) {
        const Pair below = LoadPair(corner);
        const Pair above = LoadPair(corner + pitch);
        const Pair least = Least(below, above);
        const Pair most = Most(below, above);
        return {Least(First(least), Second(least)), Most(First(most), Second(most))};
    }
    static Range OfTwo(const Pixel& a, const Pixel& b) { return {Least(a, b), Most(a, b)}; }
    // Larger to both sides, by a share of it.
    Range With(float slack) const {
        const Pixel room = (high - low) * Every(slack);
        return {low - room, high + room};
    }
    Pixel Nearest(const Pixel& value) const { return Least(Most(value, low), high); }
};

// By four times four neighbours from the corner on, within the range of the four nearest.
inline Pixel SharpColour(const float* corner, std::ptrdiff_t pitch, const float* across,
                         const float* up) {
    const Pair left = PairOf(across[0], across[1]);
    const Pair right = PairOf(across[2], across[3]);
    const auto line = [&](int row) {
        const float* const pixels = corner + row * pitch;
        return (LoadPair(pixels) * left + LoadPair(pixels + 8) * right) * Both(up[row]);
    };
    const Pair sum = (line(0) + line(1)) + (line(2) + line(3));
    return Range::OfFour(corner + pitch + 4, pitch).Nearest(First(sum) + Second(sum));
}

// ---- pixels where an axis shrinks ----

// An axis of one pixel: its neighbours, their weights, and how far a blend may leave the range of
// the two nearest.
struct Taps {
    int first = 0;
    int count = 0;     // even, the last may weigh nothing
    int nearest = 0;   // the lower of the two nearest, from the first
    float sum = 1.0F;  // of the weights
    float slack = 0.0F;
    HWY_ALIGN std::array<float, mostTaps> weights;

    // Of an axis that does not shrink.
    void TakeSharp(std::int32_t whole, const float* sharp) {
        first = whole - 1;
        count = 4;
        nearest = 1;
        sum = 1.0F;
        slack = 0.0F;
        StorePixel(LoadPixel(sharp), weights.data());
    }
};

// The kernel of an axis that shrinks, see FineAxis.
class ShrinkingKernel {
  public:
    explicit ShrinkingKernel(float blur) {
        constexpr CubicKernel<float> from = FineAxis<float>{1.0F, 0.0F, evenSharpness}.Kernel();
        constexpr CubicKernel<float> to = FineAxis<float>{1.0F, 1.0F, evenSharpness}.Kernel();
        HWY_ALIGN static constexpr std::array<float, 8> start{from.inner0, from.inner2, from.inner3,
                                                              from.outer0, from.outer1, from.outer2,
                                                              from.outer3, 0.0F};
        HWY_ALIGN static constexpr std::array<float, 8> way{
            to.inner0 - from.inner0, to.inner2 - from.inner2,
            to.inner3 - from.inner3, to.outer0 - from.outer0,
            to.outer1 - from.outer1, to.outer2 - from.outer2,
            to.outer3 - from.outer3, 0.0F};
        StorePair(LoadPair(start.data()) + LoadPair(way.data()) * Both(blur), factors_.data());
    }
    Pair At(const Pair& distance) const {
        const Pair t = Size(distance);
        const Pair inner = (Factor(2) * t + Factor(1)) * t * t + Factor(0);
        const Pair outer = ((Factor(6) * t + Factor(5)) * t + Factor(4)) * t + Factor(3);
        return WhereLess(t, 1.0F, inner, WhereLess(t, 2.0F, outer, Both(0.0F)));
    }

  private:
    Pair Factor(std::size_t n) const { return Both(factors_[n]); }

    HWY_ALIGN std::array<float, 8> factors_;
};

inline float SumOf(const Pixel& pixel) {
    HWY_ALIGN std::array<float, 4> parts;
    StorePixel(pixel, parts.data());
    return (parts[0] + parts[1]) + (parts[2] + parts[3]);
}

inline void WeighTaps(double position, float scale, Taps& taps) {
    const auto axis = FineAxis<float>::Of(scale);
    const ShrinkingKernel kernel(axis.blur);
    taps.first = axis.FirstTap(position);
    taps.count = (axis.LastTap(position) - taps.first + 2) & ~1;
    taps.nearest = static_cast<int>(std::floor(position)) - taps.first;
    taps.slack = axis.Slack();
    HWY_ALIGN static constexpr std::array<float, 8> steps{0.0F, 1.0F, 2.0F, 3.0F,
                                                          4.0F, 5.0F, 6.0F, 7.0F};
    const Pair from = Both(static_cast<float>(taps.first - position)) + LoadPair(steps.data());
    const Pair inverse = Both(1.0F / axis.width);
    Pair sums = Both(0.0F);
    for (int n = 0; n < taps.count; n += 8) {
        const Pair weight = kernel.At((from + Both(static_cast<float>(n))) * inverse);
        sums = sums + weight;
        StorePair(weight, taps.weights.data() + n);
    }
    taps.sum = SumOf(First(sums) + Second(sums));
}

inline Pixel Blend(const float* corner, std::ptrdiff_t pitch, const Taps& across, const Taps& up) {
    Pair sum = Both(0.0F);
    for (int n = 0; n < across.count; n += 2) {
        Pair column = Both(0.0F);
        for (int row = 0; row < up.count; ++row) {
            const float weight = up.weights[static_cast<std::size_t>(row)];
            column = column + LoadPair(corner + row * pitch + 4 * n) * Both(weight);
        }
        const float* const weights = &across.weights[static_cast<std::size_t>(n)];
        sum = sum + column * PairOf(weights[0], weights[1]);
    }
    return (First(sum) + Second(sum)) * Every(1.0F / (across.sum * up.sum));
}

// A line of neighbours a step apart.
inline Pixel LineColour(const float* pixels, std::ptrdiff_t step, const Taps& taps) {
    Pixel sum = Every(0.0F);
    for (int n = 0; n < taps.count; ++n) {
        const float weight = taps.weights[static_cast<std::size_t>(n)];
        sum = sum + LoadPixel(pixels + n * step) * Every(weight);
    }
    const float* const nearest = pixels + taps.nearest * step;
    const Range range = Range::OfTwo(LoadPixel(nearest), LoadPixel(nearest + step));
    return range.With(taps.slack).Nearest(sum * Every(1.0F / taps.sum));
}

// First along one axis, in lines, then over the lines.
inline Pixel MixedColour(const float* corner, std::ptrdiff_t step, const Taps& along,
                         std::ptrdiff_t lineStep, const Taps& lines) {
    Pixel sum = Every(0.0F);
    Pixel below = sum;
    Pixel above = sum;
    for (int n = 0; n < lines.count; ++n) {
        const Pixel line = LineColour(corner + n * lineStep, step, along);
        sum = sum + line * Every(lines.weights[static_cast<std::size_t>(n)]);
        below = n == lines.nearest ? line : below;
        above = n == lines.nearest + 1 ? line : above;
    }
    return Range::OfTwo(below, above).With(lines.slack).Nearest(sum * Every(1.0F / lines.sum));
}

// Where both axes are smooth nothing can ring much, but what is nowhere below black does not get
// so. Where only one is, that one comes first.
inline Pixel WideColour(const LightView& view, const Taps& across, const Taps& up) {
    const std::ptrdiff_t pitch = view.pitch;
    const float* const corner =
        view.pixels + (up.first - view.bottom) * pitch + 4 * (across.first - view.left);
    const float* const nearest = corner + up.nearest * pitch + 4 * across.nearest;
    const bool smoothAcross = across.slack >= FineAxis<float>::anySlack;
    const bool smoothUp = up.slack >= FineAxis<float>::anySlack;
    if (smoothAcross != smoothUp) {
        return smoothAcross ? MixedColour(corner, 4, across, pitch, up)
                            : MixedColour(corner, pitch, up, 4, across);
    }
    const Pixel blend = Blend(corner, pitch, across, up);
    return smoothUp ? Most(blend, Least(LoadPixel(nearest), Every(0.0F)))
                    : Range::OfFour(nearest, pitch)
                          .With(std::min(across.slack, up.slack))
                          .Nearest(blend);
}

// ---- runs ----

inline void PutSharpColour(const LightView& view, const Sharp& sharp, std::size_t n, float* out) {
    const float* const corner = view.pixels + (sharp.y[n] - 1 - view.bottom) * view.pitch +
                                4 * (sharp.x[n] - 1 - view.left);
    StorePixel(SharpColour(corner, view.pitch, &sharp.weightsX[4 * n], &sharp.weightsY[4 * n]),
               out);
}

// The n-th pixel of the run, of which sharp has the k-th.
HWY_NOINLINE void PutWideColour(const LightView& view, const FineRun& run, int n,
                                const Sharp& sharp, float* out) {
    const auto k = static_cast<std::size_t>(n) % pixelsAhead;
    Taps across;
    Taps up;
    if (run.scaleX[n] > sharpUntil) {
        WeighTaps(run.x[n], run.scaleX[n], across);
    } else {
        across.TakeSharp(sharp.x[k], &sharp.weightsX[4 * k]);
    }
    if (run.scaleY[n] > sharpUntil) {
        WeighTaps(run.y[n], run.scaleY[n], up);
    } else {
        up.TakeSharp(sharp.y[k], &sharp.weightsY[4 * k]);
    }
    StorePixel(WideColour(view, across, up), out);
}

void SampleLightImpl(const LightView& view, const FineRun& run, float* out) {
    Sharp sharp;
    for (int n = 0; n < run.count; ++n, out += lightNumbers) {
        const auto ahead = static_cast<std::size_t>(n) % pixelsAhead;
        if (ahead == 0) {
            PrepareSharp(run, n, sharp);
        }
        if (!(run.share[n] > 0.0F)) {
            StorePixel(Every(0.0F), out);
        } else if (run.scaleX[n] <= sharpUntil && run.scaleY[n] <= sharpUntil) {
            PutSharpColour(view, sharp, ahead, out);
        } else {
            PutWideColour(view, run, n, sharp, out);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(SampleLightImpl);

void SampleLight(const LightView& view, const FineRun& run, float* out) {
    HWY_DYNAMIC_DISPATCH(SampleLightImpl)(view, run, out);
}

}  // namespace varnel
#endif
