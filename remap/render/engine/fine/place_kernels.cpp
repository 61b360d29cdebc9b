// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Positions and scales. Compiled once for each instruction set.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "remap/render/engine/fine/place_kernels.cpp"
#include <hwy/foreach_target.h>
// After the line above.
#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "remap/render/engine/fine/fine_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Doubles = hn::CappedTag<double, 4>;

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

void FillLengthsImpl(const Sides& sides, std::span<float> into) {
    const Doubles d;
    const hn::Rebind<float, Doubles> floats;
    const std::size_t lanes = hn::Lanes(d);
    std::size_t n = 0;
    for (; n + lanes <= into.size(); n += lanes) {
        const auto aside = hn::Mul(hn::LoadU(d, sides.aside + n), hn::Set(d, sides.asideUnit));
        const auto up = hn::Mul(hn::LoadU(d, sides.up + n), hn::Set(d, sides.upUnit));
        const auto square = hn::Add(hn::Mul(aside, aside), hn::Mul(up, up));
        hn::StoreU(hn::DemoteTo(floats, hn::Sqrt(square)), floats, &into[n]);
    }
    for (; n < into.size(); ++n) {
        const double aside = sides.aside[n] * sides.asideUnit;
        const double up = sides.up[n] * sides.upUnit;
        into[n] = static_cast<float>(std::sqrt(aside * aside + up * up));
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace varnel {

HWY_EXPORT(ReachOfImpl);
HWY_EXPORT(FillPolynomialImpl);
HWY_EXPORT(FillLengthsImpl);

void ExtendReach(const FineRun& run, FineReach& reach) {
    HWY_DYNAMIC_DISPATCH(ReachOfImpl)(run, reach);
}

void FillPolynomial(const std::array<double, 6>& c, std::span<double> into) {
    HWY_DYNAMIC_DISPATCH(FillPolynomialImpl)(c, into);
}

void FillLengths(const Sides& sides, std::span<float> into) {
    HWY_DYNAMIC_DISPATCH(FillLengthsImpl)(sides, into);
}

void FillStraight(float from, float step, std::span<float> into) {
    for (std::size_t n = 0; n < into.size(); ++n) {
        into[n] = from + static_cast<float>(n) * step;
    }
}

}  // namespace varnel
#endif
