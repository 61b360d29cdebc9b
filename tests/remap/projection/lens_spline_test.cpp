// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/lens_spline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/error_text.h"
#include "base/run_time_error.h"

namespace varnel {
namespace {

constexpr double circle = 2700.0;  // pixels: half the shorter side at 24 megapixels and more
constexpr double degree = std::numbers::pi / 180.0;

double OddPowers(double a, double k1, double k2, double k3, double k4) {
    const double q = a * a;
    return a * (1.0 + q * (k1 + q * (k2 + q * (k3 + q * k4))));
}

struct Kind {
    const char* name;
    double limit;  // degrees
    double (*radius)(double angle);
};

const Kind kinds[] = {
    {"equidistant", 110.0, [](double a) { return a; }},
    {"equisolid", 100.0, [](double a) { return std::sin(a / 2.0); }},
    {"stereographic", 110.0, [](double a) { return std::tan(a / 2.0); }},
    {"orthographic", 89.0, [](double a) { return std::sin(a); }},
    {"sine", 95.0, [](double a) { return std::sin(0.713 * a); }},
    {"tangent", 95.0, [](double a) { return std::tan(a / 4.3); }},
    {"fifth power", 92.0, [](double a) { return OddPowers(a, -0.03, -0.012, 0.0, 0.0); }},
    {"four powers", 95.0, [](double a) { return OddPowers(a, 0.09, -0.04, 0.017, -0.004); }},
    {"quadratic at the axis", 90.0,
     [](double a) { return a * (1.0 + a * (-0.05 + a * (0.03 - 0.02 * a))); }},
    {"turns soon after", 92.0, [](double a) { return OddPowers(a, -0.01, -0.04, 0.006, 0.0); }},
};

TEST(LensSpline, MatchesTheCurvesOfFisheyes) {
    for (const Kind& kind : kinds) {
        const double limit = kind.limit * degree;
        const SampledCurve curve = SampledFrom(kind.radius, limit);
        ASSERT_TRUE(curve.reason.isEmpty()) << kind.name << ErrorText(curve.reason).toStdString();
        const LensSpline spline(curve.knots);
        double worst = 0.0;
        double inverse = 0.0;
        for (int n = 0; n <= 5000; ++n) {
            const double angle = limit * n / 5000;
            worst = std::max(worst, std::abs(spline.RadiusAt(angle) - kind.radius(angle)));
            const double radius = spline.RadiusAtLimit() * n / 5000;
            inverse = std::max(inverse, std::abs(spline.RadiusAt(spline.AngleAt(radius)) - radius));
            EXPECT_NEAR(spline.SlopeAt(angle) * 2e-6,
                        spline.RadiusAt(angle + 1e-6) - spline.RadiusAt(angle - 1e-6), 1e-8)
                << kind.name << angle;
        }
        const double pixels = circle / spline.RadiusAtLimit();
        EXPECT_LT(worst * pixels, 0.011) << kind.name;
        EXPECT_LT(inverse, 1e-12 * spline.RadiusAtLimit()) << kind.name;
    }
}

TEST(LensSpline, GoesOnInAStraightLineBeyondTheField) {
    const LensSpline spline(SampledFrom(kinds[1].radius, 1.5).knots);
    const double slope = spline.SlopeAt(1.5);
    EXPECT_NEAR(slope, std::cos(0.75) / 2.0, 1e-5);
    EXPECT_NEAR(spline.RadiusAt(2.0), spline.RadiusAtLimit() + 0.5 * slope, 1e-12);
    EXPECT_NEAR(spline.AngleAt(spline.RadiusAt(2.0)), 2.0, 1e-12);
    EXPECT_TRUE(std::isnan(spline.RadiusAt(std::nan(""))));
    EXPECT_TRUE(std::isnan(spline.AngleAt(std::nan(""))));
}

TEST(LensSpline, StaysMonotoneBetweenUnevenKnots) {
    LensKnots knots;
    for (std::size_t n = 1; n < knots.size(); ++n) {
        const double step = n % 3 == 0 ? 1.0 : 0.001;
        knots[n] = {knots[n - 1].angle + 0.02 * static_cast<double>(n), knots[n - 1].radius + step};
    }
    const LensSpline spline(knots);
    double before = -1.0;
    for (double angle = 0.0; angle < spline.FieldLimit(); angle += 0.001) {
        ASSERT_GE(spline.RadiusAt(angle), before) << angle;
        before = spline.RadiusAt(angle);
        ASSERT_NEAR(spline.RadiusAt(spline.AngleAt(before)), before, 1e-11) << angle;
    }
    for (const LensKnot& knot : knots) {
        EXPECT_NEAR(spline.RadiusAt(knot.angle), knot.radius, 1e-12);
    }
}

TEST(LensSpline, RefusesCurvesThatTurnBackWithTheAngle) {
    const SampledCurve curve = SampledFrom([](double a) { return std::sin(a); }, 100.0 * degree);
    EXPECT_EQ(ErrorText(curve.reason).toStdString(), "the lens's curve turns back at 90.0 degrees");
    EXPECT_THROW(LensSpline{curve.knots}, RunTimeError);

    const LensKnots good = SampledFrom(kinds[0].radius, 1.5).knots;
    const auto error = [&](std::size_t n, LensKnot knot) {
        LensKnots knots = good;
        knots[n] = knot;
        return CurveError(knots).Code();
    };
    EXPECT_TRUE(CurveError(good).isEmpty());
    EXPECT_EQ(error(7, {good[7].angle, good[6].radius}), ReasonCode::LensTurnsBack);
    EXPECT_EQ(error(7, {good[6].angle, good[7].radius}), ReasonCode::LensCurveUnsound);
    EXPECT_EQ(error(7, {good[7].angle, std::nan("")}), ReasonCode::LensCurveUnsound);
    EXPECT_EQ(error(0, {0.0, 0.001}), ReasonCode::LensCurveUnsound);
    EXPECT_EQ(error(15, {4.0, 5.0}), ReasonCode::LensCurveUnsound);
}

}  // namespace
}  // namespace varnel
