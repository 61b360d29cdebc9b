// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/colour_estimate.h"

#include <algorithm>
#include <cmath>

#include "remap/analysis/straighten/edge_step.h"
#include "remap/analysis/straighten/least_squares.h"

namespace varnel {

namespace {

struct Shift {
    double angle = 0.0;   // radians
    double pixels = 0.0;  // outward
    double weight = 0.0;  // the share of the shift that the edge shows
    std::size_t edge = 0;
};

// Across the edge at a point of it, as outward as it can be.
Crossing AcrossAt(const EdgeTrace& edge, std::size_t n, const LensView& lens) {
    const EdgePoint& before = edge.points[n - 3];
    const EdgePoint& after = edge.points[n + 3];
    const double length = std::max(Distance(before, after), 1e-9);
    EdgePoint along{(before.y - after.y) / length, (after.x - before.x) / length};
    const EdgePoint& place = edge.points[n];
    if (along.x * (place.x - lens.centre.x) + along.y * (place.y - lens.centre.y) < 0.0) {
        along = {-along.x, -along.y};
    }
    return {place, along};
}

struct EdgeCrossing {
    Crossing crossing;
    std::size_t edge = 0;
};

void AddShift(const Bitmap& photo, Channel channel, const EdgeCrossing& at, const LensView& lens,
              std::vector<Shift>& shifts) {
    const Crossing& crossing = at.crossing;
    const double radius = Distance(crossing.place, lens.centre);
    const double outward = (crossing.along.x * (crossing.place.x - lens.centre.x) +
                            crossing.along.y * (crossing.place.y - lens.centre.y)) /
                           std::max(radius, 1e-9);
    if (outward < 0.5) {
        return;
    }
    const double sense = Slopes(photo, Channel::Green, crossing, 1.0, 1.0)[1] < 0.0 ? -1.0 : 1.0;
    constexpr double greenReach = 2.0;
    constexpr double reach = 5.0;
    const auto green = SteepestStep(photo, Channel::Green, crossing, greenReach, sense);
    const auto other = SteepestStep(photo, channel, crossing, reach, sense);
    // Colours that step otherwise are edges of their own.
    if (green && other && other->slope / green->slope > 0.4 && other->slope / green->slope < 2.5) {
        shifts.push_back({lens.curve.At(radius).angle, (other->offset - green->offset) / outward,
                          outward * outward, at.edge});
    }
}

// Factors of the three odd powers of the share of the outermost angle.
double Outward(const Numbers& factors, double share) {
    const double square = share * share;
    return share * (factors[0] + square * (factors[1] + square * factors[2]));
}

// A robust fit; terms that nothing supports stay small. Without every so many-th edge, if wanted.
constexpr std::size_t parts = 5;

Numbers FactorsOf(const std::vector<Shift>& shifts, double rim, std::size_t without) {
    const auto misses = [&](const Numbers& factors) {
        constexpr double width = 0.3;  // pixels
        Numbers rows;
        for (const double factor : factors) {
            rows.push_back(factor / 3.0);
        }
        for (const Shift& shift : shifts) {
            if (shift.edge % parts != without) {
                const double miss = (Outward(factors, shift.angle / rim) - shift.pixels) / width;
                rows.push_back(
                    std::copysign(std::sqrt(shift.weight * std::log1p(miss * miss)), miss));
            }
        }
        return rows;
    };
    return Minimise(misses, {0.0, 0.0, 0.0}).parameters;
}

// An edge's points err together, so how far a fifth of the edges moves the result says how sure it
// is.
ColourEstimate Fitted(const std::vector<Shift>& shifts) {
    double rim = 0.0;
    for (const Shift& shift : shifts) {
        rim = std::max(rim, shift.angle);
    }
    const Numbers factors = FactorsOf(shifts, rim, parts);
    const double cube = rim * rim * rim;
    ColourEstimate estimate{{factors[0] / rim, factors[1] / cube, factors[2] / (cube * rim * rim)},
                            Outward(factors, 1.0)};
    double variance = 0.0;
    for (std::size_t part = 0; part < parts; ++part) {
        const double moved = Outward(FactorsOf(shifts, rim, part), 1.0) - estimate.atRim;
        variance += moved * moved * (parts - 1.0) / parts;
    }
    estimate.deviation = std::sqrt(variance);
    return estimate;
}

}  // namespace

std::optional<ColourEstimates> EstimateColour(const Bitmap& photo,
                                              const std::vector<EdgeTrace>& edges,
                                              const LensView& lens) {
    constexpr std::size_t leastShifts = 100;
    std::vector<Shift> red, blue;
    for (std::size_t number = 0; number < edges.size(); ++number) {
        const EdgeTrace& edge = edges[number];
        for (std::size_t n = 3; n + 3 < edge.points.size(); n += 2) {
            const Crossing crossing = AcrossAt(edge, n, lens);
            AddShift(photo, Channel::Red, {crossing, number}, lens, red);
            AddShift(photo, Channel::Blue, {crossing, number}, lens, blue);
        }
    }
    if (red.size() < leastShifts || blue.size() < leastShifts) {
        return std::nullopt;
    }
    return ColourEstimates{Fitted(red), Fitted(blue)};
}

}  // namespace varnel
