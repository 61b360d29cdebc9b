// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/lens_model.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnel {

namespace {

// One deviation of the design's numbers, and of each further term at the angle unitAngle as a share
// of the slope. Real lenses differ from two numbers by a few hundredths.
constexpr double slopeDeviation = 0.15;
constexpr double factorDeviation = 0.2;
constexpr double bendDeviation = 0.05;
constexpr double termDeviation = 0.04;
constexpr double unitAngle = 1.2;

// sin(q angle) / q and tan(q angle) / q for square = q * q, and on through 0 to negative squares.
double Sine(double square, double angle) {
    const double q = std::sqrt(std::fabs(square));
    if (q < 1e-4) {
        return angle;
    }
    return square > 0.0 ? std::sin(q * angle) / q : std::sinh(q * angle) / q;
}

double Tangent(double square, double angle) {
    const double q = std::sqrt(std::fabs(square));
    if (q < 1e-4) {
        return angle;
    }
    return square > 0.0 ? std::tan(std::min(q * angle, 1.5)) / q : std::tanh(q * angle) / q;
}

double Held(double value, double low, double high) {
    return std::clamp(std::isfinite(value) ? value : low, low, high);
}

}  // namespace

double LensModel::TwoNumbers(double slope, double factor, double angle) const {
    if (form_ == CurveForm::Guess) {
        return slope * guess_->curve.Radius(angle) * (1.0 + factor * angle * angle);
    }
    return slope * (form_ == CurveForm::Sin ? Sine(factor, angle) : Tangent(factor, angle));
}

LensModel::LensModel(CurveForm form, int terms, const LensView& guess, const LensConstraints& known)
    : form_(form),
      terms_(terms),
      guess_(&guess),
      known_(known),
      limit_(Held(1.05 * guess.curve.At(known.reach).angle, 0.3, 2.6)) {
    if (form == CurveForm::Guess) {
        return;
    }
    const double start = guess.curve.Radius(0.01) / 0.01;
    const auto misses = [&](const Numbers& numbers) {
        Numbers rows;
        for (double share = 0.1; share < 1.05; share += 0.1) {
            const double angle = share * std::min(limit_, 1.5);
            rows.push_back(TwoNumbers(start * std::exp(numbers[0]), numbers[1], angle) / start -
                           guess.curve.Radius(angle) / start);
        }
        return rows;
    };
    const Numbers design = Minimise(misses, {0.0, 0.0}).parameters;
    slope_ = start * std::exp(design[0]);
    factor_ = design[1];
}

LensView LensModel::At(const Numbers& parameters) const {
    const double slope = slope_ * std::exp(Held(slopeDeviation * parameters[2], -2.0, 2.0));
    const double factor =
        factor_ + parameters[3] * (form_ == CurveForm::Guess ? bendDeviation : factorDeviation);
    const double unit =
        termDeviation * (form_ == CurveForm::Guess ? guess_->curve.Radius(unitAngle) : slope_);
    const auto radius = [&](double angle) {
        const double share = angle / unitAngle;
        const double square = share * share;
        double power = unit * share * square;
        double sum = TwoNumbers(slope, factor, angle);
        for (std::size_t n = 4; n < Parameters(); ++n) {
            power *= square;
            sum += power * parameters[n];
        }
        return sum;
    };
    return {RadialCurve(radius, limit_),
            {guess_->centre.x + known_.centreDeviation * parameters[0],
             guess_->centre.y + known_.centreDeviation * parameters[1]}};
}

Numbers LensModel::Priors(const Numbers& parameters, const LensView& lens) const {
    Numbers rows = parameters;
    constexpr int places = 8;
    const double first = lens.curve.Radius(0.01) / 0.01;
    for (int n = 1; n <= places; ++n) {
        const double angle = limit_ * n / places;
        const double slope =
            (lens.curve.Radius(angle) - lens.curve.Radius(0.98 * angle)) / (0.02 * angle);
        rows.push_back(20.0 * std::max(0.0, 0.1 - slope / first));
    }
    if (known_.ninetyRadius) {
        rows.push_back((lens.curve.Radius(std::numbers::pi / 2.0) / *known_.ninetyRadius - 1.0) /
                       0.003);
    }
    return rows;
}

}  // namespace varnel
