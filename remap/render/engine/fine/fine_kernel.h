// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The kernel of the fine engine, which the plain loops and the vectors share: for each axis of the
// photo a cubic that is sharp where the photo is made larger and, by a shrink of 1.35, has become a
// smooth one as wide as the shrink. A scale is in pixels of the photo for each of the result, along
// one axis. Throws nothing.
#pragma once

#include <algorithm>
#include <cmath>

namespace varnel {

// Beyond that a pixel shows every part of the photo no more, only most.
inline constexpr float mostScale = 16.0F;
// Neighbours that a kernel reads along an axis, at most.
inline constexpr int mostTaps = static_cast<int>(4.0F * mostScale) + 4;

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
    CubicKernel Toward(const CubicKernel& other, Real share) const {
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

template <class Real>
inline constexpr auto sharpKernel = CubicKernel<Real>::Of(Real(0), Real(0.75F));

template <class Real>
struct FineAxis {
    Real width;  // of the kernel's unit, pixels of the photo
    Real blur;   // 0 sharp to 1 smooth

    static FineAxis Of(Real scale) {
        constexpr Real smoothFrom = Real(1.35F);
        const Real width = std::clamp(scale, Real(1), Real(mostScale));
        return {width, std::min((width - Real(1)) / (smoothFrom - Real(1)), Real(1))};
    }
    CubicKernel<Real> Kernel() const {
        constexpr Real third = Real(1) / Real(3);
        constexpr auto smooth = CubicKernel<Real>::Of(third, third);
        return sharpKernel<Real>.Toward(smooth, blur);
    }
    // How far beyond the range of the two nearest neighbours a blend may go, in such ranges.
    Real Slack() const { return blur < Real(1) ? blur / (Real(1) - blur) : Real(1e6F); }
    // The neighbours of a position that the kernel reaches.
    int FirstTap(double position) const {
        return static_cast<int>(std::floor(position - 2.0 * static_cast<double>(width))) + 1;
    }
    int LastTap(double position) const {
        return static_cast<int>(std::floor(position + 2.0 * static_cast<double>(width)));
    }
};

}  // namespace varnel
