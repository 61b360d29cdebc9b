// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/lens_formula.h"

#include <algorithm>
#include <cmath>

#include "gear/lens/least_squares.h"
#include "remap/projection/lens_spline.h"

namespace varnel {

namespace {

// Of the radius at the limit of the field: 0.05 px at 24 megapixels.
constexpr double largestError = 2e-5;

// The angle at which the curve reaches a radius; the widest where it does not, or turns back
// before.
double AngleOf(const LensFormula& formula, double radius) {
    constexpr int steps = 2048;
    double low = 0.0;
    const double widest = formula.widest;
    double high = widest;
    for (int n = 1; n <= steps && high == widest; ++n) {
        const double angle = widest * n / steps;
        (formula.radius(angle) >= radius ? high : low) = angle;
    }
    for (int n = 0; n < 50 && high < widest; ++n) {
        const double middle = (low + high) / 2.0;
        (formula.radius(middle) >= radius ? high : low) = middle;
    }
    return high;
}

}  // namespace

void ImportedLenses::Add(const Reason& reasonAgainst, SampledLens lens) {
    if (reasonAgainst.isEmpty()) {
        // The same lens stands once for every photo of a project.
        if (!lenses.contains(lens)) {
            lenses.append(std::move(lens));
        }
        return;
    }
    const Reason named =
        lens.name.isEmpty() ? reasonAgainst : Reason(ReasonCode::Of, lens.name, reasonAgainst);
    reason = reason.isEmpty() ? named : Joined({reason, named});
}

Reason FillKnots(const LensFormula& formula, SampledLens& lens) {
    const double limit = AngleOf(formula, formula.corner);
    const double turn = RisesUpTo(formula.radius, limit);
    constexpr double needed = 0.75 / 2.0;  // of the shorter side
    const bool enough = turn > 0.0 && formula.radius(turn) >= needed * formula.shorterSide;
    const SampledCurve curve = SampledFrom(formula.radius, enough ? turn : limit);
    lens.knots = curve.knots;
    const bool exact = curve.error <= largestError * curve.knots.back().radius;
    return curve.reason.isEmpty() && !exact ? ReasonCode::LensCurveUnsound : curve.reason;
}

Reason FillKnotsFromPixels(const LensFormula& formula, SampledLens& lens) {
    Reason reason = FillKnots(formula, lens);
    if (!reason.isEmpty()) {
        return reason;
    }
    lens.unit = SampledLens::Unit::CircleRadii;
    lens.pixelsPerUnit = lens.knots.back().radius;
    for (LensKnot& knot : lens.knots) {
        knot.radius /= *lens.pixelsPerUnit;
    }
    return {};
}

void MeasurePicture(const LensCentre& centre, LensFormula& formula) {
    const double x = std::max(centre.x, centre.size.width - centre.x);
    const double y = std::max(centre.y, centre.size.height - centre.y);
    formula.corner = std::hypot(x, y);
    formula.shorterSide = std::min(centre.size.width, centre.size.height);
}

ColourShift ShiftOver(const SampledLens& lens, const std::function<double(double)>& shift) {
    const LensSpline spline(lens);
    const std::vector<double> factors = FitTerms(
        3, lens.FieldLimit(), [](int term, double angle) { return std::pow(angle, 2 * term + 1); },
        [&](double angle) { return shift(spline.RadiusAt(angle)); });
    return {factors[0], factors[1], factors[2]};
}

}  // namespace varnel
