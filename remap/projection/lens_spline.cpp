// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/lens_spline.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "base/run_time_error.h"

namespace varnel {

namespace {

constexpr std::size_t last = lensKnots - 1;
using Values = std::array<double, lensKnots>;

Reason TurnsBackAt(double angle) {
    return {ReasonCode::LensTurnsBack, QString::number(angle * 180.0 / std::numbers::pi, 'f', 1)};
}

// The slopes of the spline with a continuous second derivative whose first two pieces are one
// cubic, and its last two. At the axis the formulas of other programs need not be odd.
Values SmoothSlopes(const Values& width, const Values& secant) {
    Values diagonal{}, above{}, right{};
    const double starts = width[0] + width[1];
    diagonal[0] = width[1];
    above[0] = starts;
    right[0] =
        (width[0] * width[0] * secant[1] + (2.0 * starts + width[0]) * width[1] * secant[0]) /
        starts;
    const double ends = width[last - 2] + width[last - 1];
    for (std::size_t n = 1; n <= last; ++n) {
        double below = ends;
        if (n < last) {
            // Multiplied by both widths.
            below = width[n];
            diagonal[n] = 2.0 * (width[n - 1] + width[n]);
            above[n] = width[n - 1];
            right[n] = 3.0 * (width[n] * secant[n - 1] + width[n - 1] * secant[n]);
        } else {
            diagonal[n] = width[last - 2];
            right[n] = (width[last - 1] * width[last - 1] * secant[last - 2] +
                        (2.0 * ends + width[last - 1]) * width[last - 2] * secant[last - 1]) /
                       ends;
        }
        const double factor = below / diagonal[n - 1];
        diagonal[n] -= factor * above[n - 1];
        right[n] -= factor * right[n - 1];
    }
    Values slopes{};
    slopes[last] = right[last] / diagonal[last];
    for (std::size_t n = last; n-- > 0;) {
        slopes[n] = (right[n] - above[n] * slopes[n + 1]) / diagonal[n];
    }
    return slopes;
}

// Within a circle of three secants the cubic is monotone.
void Flatten(Values& slopes, const Values& secant) {
    for (double& slope : slopes) {
        slope = std::max(slope, 0.0);
    }
    for (std::size_t n = 0; n < last; ++n) {
        const double length = std::hypot(slopes[n], slopes[n + 1]);
        if (length > 3.0 * secant[n]) {
            slopes[n] *= 3.0 * secant[n] / length;
            slopes[n + 1] *= 3.0 * secant[n] / length;
        }
    }
}

// Evenly spaced, or denser at the rim, where the curves of lenses bend most, and at the axis; each
// crowding from 0 to 1.
LensKnots KnotsOf(const std::function<double(double)>& radiusOfAngle, double limit, double atRim,
                  double atAxis) {
    LensKnots knots{};
    for (std::size_t n = 1; n <= last; ++n) {
        const double even = static_cast<double>(n) / static_cast<double>(last);
        const double turn = even * std::numbers::pi / 2.0;
        const double share = even + atRim * (std::sin(turn) - even) +
                             atAxis * (std::sin(turn) * std::sin(turn) - even);
        knots[n] = {limit * share, radiusOfAngle(limit * share)};
    }
    return knots;
}

double LargestError(const LensKnots& knots, const std::function<double(double)>& radiusOfAngle) {
    constexpr int steps = 512;
    const LensSpline spline(knots);
    double largest = 0.0;
    for (int n = 1; n < steps; ++n) {
        const double angle = spline.FieldLimit() * n / steps;
        largest = std::max(largest, std::abs(spline.RadiusAt(angle) - radiusOfAngle(angle)));
    }
    return largest;
}

}  // namespace

Reason CurveError(const LensKnots& knots) {
    const auto finite = [](const LensKnot& knot) {
        return std::isfinite(knot.angle) && std::isfinite(knot.radius);
    };
    if (!std::ranges::all_of(knots, finite) || knots[0] != LensKnot{} ||
        knots[last].angle > std::numbers::pi || knots[last].radius > 1e6) {
        return ReasonCode::LensCurveUnsound;
    }
    // Nearer knots would make slopes that no number holds.
    constexpr double nearest = 1e-9;
    for (std::size_t n = 1; n <= last; ++n) {
        if (!(knots[n].angle - knots[n - 1].angle > nearest)) {
            return ReasonCode::LensCurveUnsound;
        }
        if (!(knots[n].radius > knots[n - 1].radius)) {
            return TurnsBackAt(knots[n - 1].angle);
        }
    }
    return {};
}

double RisesUpTo(const std::function<double(double)>& radiusOfAngle, double limit) {
    constexpr int steps = 4096;
    double before = 0.0;
    for (int n = 1; n <= steps; ++n) {
        const double radius = radiusOfAngle(limit * n / steps);
        if (!(radius > before)) {
            return limit * (n - 1) / steps;
        }
        before = radius;
    }
    return limit;
}

SampledCurve SampledFrom(const std::function<double(double)>& radiusOfAngle, double limit) {
    SampledCurve curve;
    const double turn = RisesUpTo(radiusOfAngle, limit);
    if (turn < limit) {
        curve.reason = TurnsBackAt(turn);
        return curve;
    }
    double least = std::numeric_limits<double>::infinity();
    // Together at most 1, so that the angles rise.
    for (int pair = 0; pair < 36; ++pair) {
        const double atRim = pair % 6 / 5.0;
        const double atAxis = pair / 6 / 5.0 * (1.0 - atRim);
        const LensKnots knots = KnotsOf(radiusOfAngle, limit, atRim, atAxis);
        const Reason reason = CurveError(knots);
        const double error = reason.isEmpty() ? LargestError(knots, radiusOfAngle) : 1e300;
        if (error < least) {
            least = error;
            curve = {knots, error, reason};
        }
    }
    return curve;
}

LensSpline::LensSpline(const LensKnots& knots) : knots_(knots) {
    if (!CurveError(knots).isEmpty()) {
        throw RunTimeError(ReasonCode::DoesNotRise, ReasonCode::LensCurve);
    }
    Values width{}, secant{};
    for (std::size_t n = 0; n < last; ++n) {
        width[n] = knots[n + 1].angle - knots[n].angle;
        secant[n] = (knots[n + 1].radius - knots[n].radius) / width[n];
    }
    Values slopes = SmoothSlopes(width, secant);
    Flatten(slopes, secant);
    for (std::size_t n = 0; n < last; ++n) {
        pieces_[n] = {knots[n], slopes[n],
                      (3.0 * secant[n] - 2.0 * slopes[n] - slopes[n + 1]) / width[n],
                      (slopes[n] + slopes[n + 1] - 2.0 * secant[n]) / (width[n] * width[n])};
    }
    const double mean = knots[last].radius / knots[last].angle;
    pieces_[last] = {knots[last], std::max(slopes[last], mean / 100.0), 0.0, 0.0};
}

const LensSpline::Piece& LensSpline::PieceAt(double angle) const {
    const auto next =
        std::upper_bound(pieces_.begin() + 1, pieces_.end(), angle,
                         [](double at, const Piece& piece) { return at < piece.start.angle; });
    return *(next - 1);
}

double LensSpline::RadiusAt(double angle) const {
    const Piece& piece = PieceAt(angle);
    const double t = angle - piece.start.angle;
    return piece.start.radius + (piece.c1 + (piece.c2 + piece.c3 * t) * t) * t;
}

double LensSpline::SlopeAt(double angle) const {
    const Piece& piece = PieceAt(angle);
    const double t = angle - piece.start.angle;
    return std::max(0.0, piece.c1 + (2.0 * piece.c2 + 3.0 * piece.c3 * t) * t);
}

double LensSpline::AngleAt(double radius) const {
    const auto next =
        std::upper_bound(pieces_.begin() + 1, pieces_.end(), radius,
                         [](double at, const Piece& piece) { return at < piece.start.radius; });
    const Piece& piece = *(next - 1);
    const double target = radius - piece.start.radius;
    if (next == pieces_.end()) {
        return piece.start.angle + target / piece.c1;
    }
    // Newton's steps, halving where one would leave what is known to hold the angle.
    double low = 0.0;
    double high = next->start.angle - piece.start.angle;
    double t = high * target / (next->start.radius - piece.start.radius);
    const double exact = 1e-13 * RadiusAtLimit();
    for (int n = 0; n < 60; ++n) {
        const double error = (piece.c1 + (piece.c2 + piece.c3 * t) * t) * t - target;
        if (!(std::abs(error) > exact)) {
            break;
        }
        (error > 0.0 ? high : low) = t;
        t -= error / (piece.c1 + (2.0 * piece.c2 + 3.0 * piece.c3 * t) * t);
        if (!(t > low && t < high)) {
            t = (low + high) / 2.0;
        }
    }
    return piece.start.angle + t;
}

}  // namespace varnel
