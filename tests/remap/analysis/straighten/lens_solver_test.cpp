// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/lens_solver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numbers>

#include "remap/analysis/straighten/view_bend.h"
#include "tests/remap/analysis/straighten/traced_room.h"

namespace varnel {
namespace {

using testing::RoomShot;
using testing::TraceRoom;

struct Drawn {
    const char* name;
    std::function<double(double)> radius;  // 1 for 1 radian at the axis
};

double Odd(double angle, double k1, double k2, double k3, double k4) {
    const double square = angle * angle;
    return angle * (1.0 + square * (k1 + square * (k2 + square * (k3 + square * k4))));
}

std::vector<Drawn> IdealLenses() {
    return {{"equisolid", [](double a) { return 2.0 * std::sin(a / 2.0); }},
            {"equidistant", [](double a) { return a; }},
            {"stereographic", [](double a) { return 2.0 * std::tan(a / 2.0); }},
            {"sine 0.6", [](double a) { return std::sin(0.6 * a) / 0.6; }},
            {"sine 0.33", [](double a) { return std::sin(0.333 * a) / 0.333; }}};
}

// Departures from two numbers of the size that published and measured curves have.
std::vector<Drawn> RealLenses() {
    return {{"a", [](double a) { return Odd(a, -0.025, 0.012, -0.009, 0.0012); }},
            {"b", [](double a) { return Odd(a, -0.049, 0.0193, -0.0175, 0.0036); }},
            {"c", [](double a) { return Odd(a, 0.031, -0.022, 0.0068, -0.0011); }},
            {"d", [](double a) { return Odd(a, -0.0076, -0.0041, 0.0011, -0.0006); }},
            {"e", [](double a) { return 2.0 * std::sin(a / 2.0) + 0.006 * a * a * a * a * a; }},
            {"f", [](double a) { return Odd(a, -0.062, 0.004, -0.0021, 0.0); }},
            {"g", [](double a) {
                 return 0.9 * std::sin(a / 1.6) * 1.6 + 0.1 * std::tan(a / 2.4) * 2.4;
             }}};
}

struct Case {
    const char* name;
    bool full;  // fills the frame; otherwise its circle is 1900 pixels in radius and found
    std::vector<Drawn> lenses;
    int photos, edges, rooms;
    bool tagged;
    double median, ninetieth;  // the bends to reach
};

struct Outcome {
    std::vector<double> bends, angles;  // pixels; degrees
    int soundlyStated = 0;
};

double Quantile(std::vector<double> values, double share) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(share * (static_cast<double>(values.size()) - 1.0))];
}

std::vector<EdgeTrace> Rooms(const Case& shots, const LensView& lens, std::mt19937& random) {
    std::vector<EdgeTrace> all;
    for (int photo = 0; photo < shots.photos; ++photo) {
        const RoomShot shot{
            .circle = shots.full ? 0.0 : 1900.0, .edges = shots.edges, .photo = photo};
        std::ranges::copy(TraceRoom(lens, shot, random), std::back_inserter(all));
    }
    for (EdgeTrace& edge : all) {
        edge.tag = shots.tagged ? edge.tag : EdgeTag::None;
    }
    return all;
}

void Solve(const Case& shots, const Drawn& drawn, std::mt19937& random, Outcome& outcome) {
    std::uniform_real_distribution<double> any(-1.0, 1.0);
    const double rim = shots.full ? 3600.0 : 1900.0;
    const double slope = rim / drawn.radius(std::numbers::pi / 2.0);
    const double off = shots.full ? 25.0 : 8.0;
    const LensView truth{RadialCurve([&](double a) { return slope * drawn.radius(a); }, 1.65),
                         {3000.0 + off * any(random), 2000.0 + off * any(random)}};
    const LensCurve nearby{static_cast<float>(2.0 * slope * (1.0 + 0.03 * any(random))), 0.5F};
    const LensView guess = ViewOfFormula(LensKind::Sin, nearby, 1.0, {3000.0, 2000.0});
    LensConstraints known{.centreDeviation = 0.8 * off, .reach = rim};
    if (!shots.full) {
        known.ninetyRadius = rim * (1.0 + 0.002 * any(random));
    }
    const SolvedLens solved = SolveLens(Rooms(shots, truth, random), guess, known);
    EXPECT_TRUE(solved.improved);
    EXPECT_LE(solved.heldOutAfter, solved.heldOutBefore);
    outcome.bends.push_back(ViewBend(truth, solved.lens));
    outcome.soundlyStated += outcome.bends.back() < 2.5 * solved.expectedBend ? 1 : 0;
    double worst = 0.0;
    for (int n = 1; n <= 19; ++n) {
        const double angle = 0.05 * n;
        worst = std::max(worst,
                         std::fabs(solved.lens.curve.At(truth.curve.Radius(angle)).angle - angle));
    }
    if (solved.anglesFixed) {
        outcome.angles.push_back(worst * 180.0 / std::numbers::pi);
    }
}

class LensSolver : public ::testing::TestWithParam<Case> {};

TEST_P(LensSolver, StraightensRooms) {
    const Case& shots = GetParam();
    Outcome outcome;
    std::mt19937 random(5);
    for (int room = 0; room < shots.rooms; ++room) {
        for (const Drawn& lens : shots.lenses) {
            Solve(shots, lens, random, outcome);
        }
    }
    const auto count = static_cast<double>(outcome.bends.size());
    const double median = Quantile(outcome.bends, 0.5);
    const double ninetieth = Quantile(outcome.bends, 0.9);
    EXPECT_LE(median, shots.median);
    EXPECT_LE(ninetieth, shots.ninetieth);
    EXPECT_GE(outcome.soundlyStated, 0.9 * count);
    RecordProperty("bends", std::to_string(median) + " / " + std::to_string(ninetieth));
    if (shots.tagged) {
        ASSERT_GE(static_cast<double>(outcome.angles.size()), 0.7 * count);
        EXPECT_LE(Quantile(outcome.angles, 0.9), 0.1);
    } else {
        EXPECT_TRUE(outcome.angles.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rooms, LensSolver,
    ::testing::Values(Case{"IdealCircular", false, IdealLenses(), 1, 8, 5, false, 0.5, 1.2},
                      Case{"IdealFull", true, IdealLenses(), 1, 8, 5, false, 0.5, 1.2},
                      Case{"RealCircular", false, RealLenses(), 2, 12, 2, true, 0.6, 1.2},
                      Case{"RealFull", true, RealLenses(), 2, 12, 2, true, 0.6, 1.2}),
    [](const auto& shots) { return shots.param.name; });

// Of one photo each, whose edges are bent a little themselves.
TEST(LensSolver, StatesErrorsThatHalvesOfTheEdgesAgreeWith) {
    std::mt19937 random(11);
    const LensView guess = ViewOfFormula(LensKind::Sin, {4800.0F, 0.5F}, 1.0, {3000.0, 2000.0});
    std::vector<double> stated;
    int agree = 0;
    for (int room = 0; room < 2; ++room) {
        for (const Drawn& drawn : RealLenses()) {
            const double slope = 3600.0 / drawn.radius(std::numbers::pi / 2.0);
            const LensView truth{
                RadialCurve([&](double a) { return slope * drawn.radius(a); }, 1.65),
                {3012.0, 1990.0}};
            const std::vector<EdgeTrace> edges =
                TraceRoom(truth, {.edges = 24, .bow = 0.4}, random);
            std::vector<EdgeTrace> even, odd;
            for (std::size_t n = 0; n < edges.size(); ++n) {
                (n % 2 == 0 ? even : odd).push_back(edges[n]);
            }
            const SolvedLens one = SolveLens(even, guess, {});
            const SolvedLens other = SolveLens(odd, guess, {});
            agree +=
                ViewBend(one.lens, other.lens) <= std::hypot(one.expectedBend, other.expectedBend)
                    ? 1
                    : 0;
            stated.push_back(SolveLens(edges, guess, {}).expectedBend);
        }
    }
    RecordProperty("agree", agree);
    RecordProperty("stated", std::to_string(Quantile(stated, 0.5)));
    EXPECT_GE(agree, 0.9 * static_cast<double>(stated.size()));
    EXPECT_LE(Quantile(stated, 0.5), 5.0);
}

TEST(LensSolver, TakesTheFocalLengthForTheScaleOfAngles) {
    const LensView truth = ViewOfFormula(LensKind::Sin, {2600.0F, 0.5F}, 1.0, {3010.0, 1990.0});
    const LensView guess = ViewOfFormula(LensKind::Tan, {2600.0F, 2.0F}, 1.0, {3000.0, 2000.0});
    std::mt19937 random(2);
    std::vector<EdgeTrace> edges = TraceRoom(truth, {.edges = 12}, random);
    for (EdgeTrace& edge : edges) {
        edge.tag = EdgeTag::None;
    }
    const SolvedLens open = SolveLens(edges, guess, {});
    EXPECT_FALSE(open.anglesFixed);
    EXPECT_GT(open.angleErrorDegrees, 2.0);
    const SolvedLens solved = SolveLens(edges, guess, {.focalPixels = 1300.0});
    EXPECT_TRUE(solved.anglesFixed);
    EXPECT_LT(solved.angleErrorDegrees, 1.0);
    EXPECT_NEAR(solved.lens.curve.Radius(0.01) / 0.01, 1300.0, 13.0);
    EXPECT_LT(ViewBend(truth, solved.lens), 3.0);
}

TEST(LensSolver, LeavesBentThingsOutAndKeepsAGuessThatIsRight) {
    const LensView truth = ViewOfFormula(LensKind::Sin, {2600.0F, 0.5F}, 1.0, {3000.0, 2000.0});
    std::mt19937 random(4);
    std::vector<EdgeTrace> edges = TraceRoom(truth, {.edges = 12}, random);
    const std::size_t count = edges[3].points.size();
    for (std::size_t n = 0; n < count; ++n) {  // a round table
        const double turn = 0.6 * static_cast<double>(n) / static_cast<double>(count);
        edges[3].points[n] = {2500.0 + 900.0 * std::cos(turn), 1500.0 + 900.0 * std::sin(turn)};
    }
    const SolvedLens solved = SolveLens(edges, truth, {});
    EXPECT_LE(solved.heldOutAfter, solved.heldOutBefore);
    EXPECT_LT(ViewBend(truth, solved.lens), 1.0);
    EXPECT_FALSE(solved.edges[3].used);
    EXPECT_GE(std::ranges::count(solved.edges, true, &EdgeResult::used), 10);
    EXPECT_FALSE(SolveLens({}, truth, {}).improved);
}

}  // namespace
}  // namespace varnel
