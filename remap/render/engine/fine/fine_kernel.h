// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The kernel of the fine engine, which the plain loops and the vectors share: for each axis of the
// photo a cubic that is sharp where the photo is made larger and, at a shrink of 1.44, has become a
// smooth one that grows with the shrink. Its numbers are those that came nearest to what a camera
// of the result's view would have taken, with no more false lines than half of what a linear blend
// leaves; fine_bench measures both. A scale is in pixels of the photo for each of the result, along
// one axis. Throws nothing.
#pragma once

#include <algorithm>
#include <cmath>

namespace varnel {

// Beyond that a pixel shows every part of the photo no more, only most.
inline constexpr float mostScale = 16.0F;
// Neighbours that a kernel reads along an axis, at most.
inline constexpr int mostTaps = static_cast<int>(4.0F * (mostScale + 2.0F));  // by eights

// A piecewise cubic over the distance d from its middle: |d| < 1 and 1 <= |d| < 2.
template <class Real>
struct CubicKernel {
    Real inner0, inner2, inner3;          // inner0 + inner2 d^2 + inner3 d^3
    Real outer0, outer1, outer2, outer3;  // outer0 + outer1 d + ...

    // By the two usual numbers of such cubics.
    static constexpr CubicKernel Of(Real b, Real c) {
        return {(Real(6) - Real(2) * b) / Real(6),
                (Real(-18) + Real(12) * b + Real(6) * c) / Real(6),
                (Real(12) - Real(9) * b - Real(6) * c) / Real(6),
                (Real(8) * b + Real(24) * c) / Real(6),
                (Real(-12) * b - Real(48) * c) / Real(6),
                (Real(6) * b + Real(30) * c) / Real(6),
                (-b - Real(6) * c) / Real(6)};
    }
    // A share of the way to another one.
    constexpr CubicKernel Toward(const CubicKernel& other, Real share) const {
        const auto between = [share](Real from, Real to) { return from + (to - from) * share; };
        return {between(inner0, other.inner0), between(inner2, other.inner2),
                between(inner3, other.inner3), between(outer0, other.outer0),
                between(outer1, other.outer1), between(outer2, other.outer2),
                between(outer3, other.outer3)};
    }
    Real At(Real distance) const {
        const Real d = std::fabs(distance);
        if (d >= Real(2)) {
            return Real(0);
        }
        return d < Real(1) ? (inner3 * d + inner2) * d * d + inner0
                           : ((outer3 * d + outer2) * d + outer1) * d + outer0;
    }
};

// An axis that shrinks no more than that is read sharply, by four neighbours: what aliases is
// little.
inline constexpr float sharpUntil = 1.06F;
// Of kernels with B = 0, which is that of all sharp ones, C at a scale of 1, and what it gains
// until a pixel of the photo is 1 / 0.6 pixels wide. Beyond a C of 1 slopes get steps.
inline constexpr float evenSharpness = 0.8F;
inline constexpr float moreSharpness = 0.2F;
inline constexpr float sharpnessByScale = 2.5F;

template <class Real>
struct FineAxis {
    Real width = Real(1);      // of the kernel's unit, pixels of the photo
    Real blur = Real(0);       // 0 sharp to 1 smooth
    Real sharpness = Real(0);  // C of the sharp kernel

    static FineAxis Of(Real scale) {
        const Real shrink = std::clamp(scale, Real(sharpUntil), Real(mostScale));
        const Real gain = std::clamp((Real(1) - scale) * Real(sharpnessByScale), Real(0), Real(1));
        return {WidthFor(shrink), std::min((shrink - Real(sharpUntil)) / Real(0.38F), Real(1)),
                Real(evenSharpness) + Real(moreSharpness) * gain};
    }
    constexpr CubicKernel<Real> Kernel() const {
        constexpr auto smooth = CubicKernel<Real>::Of(Real(0.4F), Real(0.25F));
        return CubicKernel<Real>::Of(Real(0), sharpness).Toward(smooth, blur);
    }
    // How far beyond the range of the nearest neighbours a blend may go, in such ranges: anySlack
    // where it is smooth.
    Real Slack() const {
        constexpr Real from = Real(0.5F);
        return blur < Real(1)
                   ? std::min(std::max(blur - from, Real(0)) / (Real(1) - blur), Real(1e5F))
                   : anySlack;
    }
    static constexpr Real anySlack = Real(1e6F);
    // The neighbours of a position that the kernel reaches.
    int FirstTap(double position) const {
        return static_cast<int>(std::floor(position - 2.0 * static_cast<double>(width))) + 1;
    }
    int LastTap(double position) const {
        return static_cast<int>(std::floor(position + 2.0 * static_cast<double>(width)));
    }

  private:
    // Narrower than the shrink while that is small, as cameras keep some of what is too fine.
    static constexpr Real WidthFor(Real shrink) {
        const Real little =
            std::min(shrink + Real(1.0F - sharpUntil), Real(0.8F) * shrink + Real(0.2F));
        const Real more = std::min(Real(1.39F) * shrink - Real(0.85F), shrink + Real(0.25F));
        return std::max({Real(1), little, more});
    }
};

}  // namespace varnel
