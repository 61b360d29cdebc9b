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
#include <limits>

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

// The weights of the four neighbours for parts of 0 to 1, four after the other for each pixel.
inline void WeighSharp(const float* parts, float* weights) {
    constexpr CubicKernel<float> kernel = sharpKernel<float>;
    const Pixel one = Every(1.0F);
    for (std::size_t n = 0; n < pixelsAhead; n += 4) {
        const Pixel part = LoadPixel(parts + n);
        const Pixel rest = one - part;
        StoreInTurn({OuterAt(kernel, part + one), InnerAt(kernel, part), InnerAt(kernel, rest),
                     OuterAt(kernel, rest + one)},
                    weights + 4 * n);
    }
}

inline void PrepareSharp(const FineRun& run, int first, Sharp& sharp) {
    HWY_ALIGN std::array<float, pixelsAhead> parts;
    Split(run.x + first, sharp.x.data(), parts.data());
    WeighSharp(parts.data(), sharp.weightsX.data());
    Split(run.y + first, sharp.y.data(), parts.data());
    WeighSharp(parts.data(), sharp.weightsY.data());
}

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
    const Pair below = LoadPair(corner + pitch + 4);
    const Pair above = LoadPair(corner + 2 * pitch + 4);
    const Pair low = Least(below, above);
    const Pair high = Most(below, above);
    return Least(Most(First(sum) + Second(sum), Least(First(low), Second(low))),
                 Most(First(high), Second(high)));
}

// ---- pixels where an axis shrinks ----

// An axis of one pixel: its neighbours, their weights, whose sum is 1, and how far a blend may
// leave the range of the two nearest.
struct Taps {
    int first = 0;
    int count = 0;    // even, the last may weigh nothing
    int nearest = 0;  // the lower of the two nearest, from the first
    float slack = 0.0F;
    HWY_ALIGN std::array<float, mostTaps> weights;

    // Of an axis that does not shrink.
    void TakeSharp(std::int32_t whole, const float* sharp) {
        first = whole - 1;
        count = 4;
        nearest = 1;
        slack = 0.0F;
        StorePixel(LoadPixel(sharp), weights.data());
    }
};

inline Pixel KernelAt(const CubicKernel<float>& kernel, const Pixel& distance) {
    const Pixel t = Size(distance);
    const Pixel outer = WhereLess(t, 2.0F, OuterAt(kernel, t), Every(0.0F));
    return WhereLess(t, 1.0F, InnerAt(kernel, t), outer);
}

inline float SumOf(const Pixel& pixel) {
    HWY_ALIGN std::array<float, 4> parts;
    StorePixel(pixel, parts.data());
    return (parts[0] + parts[1]) + (parts[2] + parts[3]);
}

inline void WeighTaps(double position, float scale, Taps& taps) {
    const auto axis = FineAxis<float>::Of(scale);
    const CubicKernel<float> kernel = axis.Kernel();
    taps.first = axis.FirstTap(position);
    taps.count = (axis.LastTap(position) - taps.first + 2) & ~1;
    taps.nearest = static_cast<int>(std::floor(position)) - taps.first;
    taps.slack = axis.Slack();
    HWY_ALIGN constexpr std::array<float, 4> steps{0.0F, 1.0F, 2.0F, 3.0F};
    const Pixel from = Every(static_cast<float>(taps.first - position)) + LoadPixel(steps.data());
    const Pixel inverse = Every(1.0F / axis.width);
    Pixel sums = Every(0.0F);
    for (int n = 0; n < taps.count; n += 4) {
        const Pixel weight = KernelAt(kernel, (from + Every(static_cast<float>(n))) * inverse);
        sums = sums + weight;
        StorePixel(weight, taps.weights.data() + n);
    }
    const Pixel share = Every(1.0F / SumOf(sums));
    for (int n = 0; n < taps.count; n += 4) {
        float* const weights = taps.weights.data() + n;
        StorePixel(LoadPixel(weights) * share, weights);
    }
}

// Where both axes are smooth: nothing can ring much. What is nowhere below black does not get so.
inline Pixel SmoothColour(const float* corner, std::ptrdiff_t pitch, const Taps& across,
                          const Taps& up) {
    HWY_ALIGN std::array<float, lightNumbers * mostTaps> spread;
    for (int n = 0; n < across.count; ++n) {
        const auto at = static_cast<std::size_t>(n);
        StorePixel(Every(across.weights[at]), &spread[lightNumbers * at]);
    }
    Pair sum = Both(0.0F);
    for (int row = 0; row < up.count; ++row) {
        const float* const pixels = corner + row * pitch;
        Pair line = Both(0.0F);
        for (int n = 0; n < 4 * across.count; n += 8) {
            line = line + LoadPair(pixels + n) * LoadPair(spread.data() + n);
        }
        sum = sum + line * Both(up.weights[static_cast<std::size_t>(row)]);
    }
    const float* const nearest = corner + up.nearest * pitch + 4 * across.nearest;
    return Most(First(sum) + Second(sum), Least(LoadPixel(nearest), Every(0.0F)));
}

// Between two neighbours, or so much beyond as there is slack.
inline Pixel Within(const Pixel& value, const Pixel& a, const Pixel& b, float slack) {
    const Pixel low = Least(a, b);
    const Pixel high = Most(a, b);
    const Pixel room = (high - low) * Every(slack);
    return Least(Most(value, low - room), high + room);
}

// A line of neighbours a step apart.
inline Pixel LineColour(const float* pixels, std::ptrdiff_t step, const Taps& taps) {
    Pixel sum = Every(0.0F);
    for (int n = 0; n < taps.count; ++n) {
        const float weight = taps.weights[static_cast<std::size_t>(n)];
        sum = sum + LoadPixel(pixels + n * step) * Every(weight);
    }
    const float* const nearest = pixels + taps.nearest * step;
    return Within(sum, LoadPixel(nearest), LoadPixel(nearest + step), taps.slack);
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
    return Within(sum, below, above, lines.slack);
}

// The axis that shrinks more comes first.
inline Pixel WideColour(const LightView& view, const Taps& across, const Taps& up) {
    const float* const corner =
        view.pixels + (up.first - view.bottom) * view.pitch + 4 * (across.first - view.left);
    constexpr float none = 1e5F;
    if (across.slack > none && up.slack > none) {
        return SmoothColour(corner, view.pitch, across, up);
    }
    return across.slack >= up.slack ? MixedColour(corner, 4, across, view.pitch, up)
                                    : MixedColour(corner, view.pitch, up, 4, across);
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
    if (run.scaleX[n] > 1.0F) {
        WeighTaps(run.x[n], run.scaleX[n], across);
    } else {
        across.TakeSharp(sharp.x[k], &sharp.weightsX[4 * k]);
    }
    if (run.scaleY[n] > 1.0F) {
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
        } else if (run.scaleX[n] <= 1.0F && run.scaleY[n] <= 1.0F) {
            PutSharpColour(view, sharp, ahead, out);
        } else {
            PutWideColour(view, run, n, sharp, out);
        }
    }
}

void ReachOfImpl(const FineRun& run, FineReach& reach) {
    const Doubles d;
    const hn::Rebind<float, Doubles> floats;
    const auto far = hn::Set(d, std::numeric_limits<double>::infinity());
    auto left = far;
    auto bottom = far;
    auto right = hn::Neg(far);
    auto top = right;
    auto scaleX = hn::Zero(floats);
    auto scaleY = scaleX;
    for (int n = 0; n < run.count; n += static_cast<int>(hn::Lanes(d))) {
        const auto share = hn::LoadU(floats, run.share + n);
        const auto isLeft = hn::Lt(hn::Iota(d, n), hn::Set(d, run.count));
        const auto shown = hn::And(isLeft, hn::Gt(hn::PromoteTo(d, share), hn::Zero(d)));
        const auto x = hn::LoadU(d, run.x + n);
        const auto y = hn::LoadU(d, run.y + n);
        left = hn::Min(left, hn::IfThenElse(shown, x, far));
        right = hn::Max(right, hn::IfThenElse(shown, x, hn::Neg(far)));
        bottom = hn::Min(bottom, hn::IfThenElse(shown, y, far));
        top = hn::Max(top, hn::IfThenElse(shown, y, hn::Neg(far)));
        scaleX = hn::Max(scaleX, hn::LoadU(floats, run.scaleX + n));
        scaleY = hn::Max(scaleY, hn::LoadU(floats, run.scaleY + n));
    }
    reach.left = std::min(reach.left, hn::GetLane(hn::MinOfLanes(d, left)));
    reach.right = std::max(reach.right, hn::GetLane(hn::MaxOfLanes(d, right)));
    reach.bottom = std::min(reach.bottom, hn::GetLane(hn::MinOfLanes(d, bottom)));
    reach.top = std::max(reach.top, hn::GetLane(hn::MaxOfLanes(d, top)));
    reach.scaleX = std::max(reach.scaleX, hn::GetLane(hn::MaxOfLanes(floats, scaleX)));
    reach.scaleY = std::max(reach.scaleY, hn::GetLane(hn::MaxOfLanes(floats, scaleY)));
}

void FillPolynomialImpl(const std::array<double, 6>& c, std::span<double> into) {
    const Doubles d;
    const std::size_t lanes = hn::Lanes(d);
    for (std::size_t n = 0; n < into.size(); n += lanes) {
        const auto t = hn::Iota(d, static_cast<double>(n));
        auto sum = hn::Set(d, c[5]);
        for (std::size_t power = 5; power-- > 0;) {
            sum = hn::Add(hn::Mul(sum, t), hn::Set(d, c[power]));
        }
        if (n + lanes <= into.size()) {
            hn::StoreU(sum, d, &into[n]);
        } else {
            HWY_ALIGN std::array<double, 4> last;
            hn::Store(sum, d, last.data());
            std::copy_n(last.begin(), into.size() - n, &into[n]);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(SampleLightImpl);
HWY_EXPORT(ReachOfImpl);
HWY_EXPORT(FillPolynomialImpl);

void SampleLight(const LightView& view, const FineRun& run, float* out) {
    HWY_DYNAMIC_DISPATCH(SampleLightImpl)(view, run, out);
}

void ExtendReach(const FineRun& run, FineReach& reach) {
    HWY_DYNAMIC_DISPATCH(ReachOfImpl)(run, reach);
}

void FillPolynomial(const std::array<double, 6>& c, std::span<double> into) {
    HWY_DYNAMIC_DISPATCH(FillPolynomialImpl)(c, into);
}

void FillStraight(float from, float step, std::span<float> into) {
    for (std::size_t n = 0; n < into.size(); ++n) {
        into[n] = from + static_cast<float>(n) * step;
    }
}

}  // namespace varnel
#endif
