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

void AddShift(const Bitmap& photo, Channel channel, const Crossing& crossing, const LensView& lens,
              std::vector<Shift>& shifts) {
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
                          outward * outward});
    }
}

// A robust fit of the three odd powers; terms that nothing supports stay small.
ColourEstimate Fitted(const std::vector<Shift>& shifts) {
    double rim = 0.0;
    for (const Shift& shift : shifts) {
        rim = std::max(rim, shift.angle);
    }
    const auto at = [rim](const Numbers& numbers, double angle) {
        const double share = angle / rim;
        const double square = share * share;
        return share * (numbers[0] + square * (numbers[1] + square * numbers[2]));
    };
    const auto misses = [&](const Numbers& numbers) {
        Numbers rows;
        for (const double number : numbers) {
            rows.push_back(number / 3.0);
        }
        for (const Shift& shift : shifts) {
            constexpr double width = 0.3;  // pixels
            const double miss = (at(numbers, shift.angle) - shift.pixels) / width;
            rows.push_back(std::copysign(std::sqrt(shift.weight * std::log1p(miss * miss)), miss));
        }
        return rows;
    };
    const LeastSquaresFit fit = Minimise(misses, {0.0, 0.0, 0.0});
    const Numbers outermost{1.0, 1.0, 1.0};
    const Numbers spread = SolveByRoot(Information(fit.derivatives).Root(), outermost);
    const double cube = rim * rim * rim;
    return {
        {fit.parameters[0] / rim, fit.parameters[1] / cube, fit.parameters[2] / (cube * rim * rim)},
        at(fit.parameters, rim),
        0.3 * std::sqrt(std::max(spread[0] + spread[1] + spread[2], 0.0))};
}

}  // namespace

std::optional<ColourEstimates> EstimateColour(const Bitmap& photo,
                                              const std::vector<EdgeTrace>& edges,
                                              const LensView& lens) {
    constexpr std::size_t leastShifts = 100;
    std::vector<Shift> red, blue;
    for (const EdgeTrace& edge : edges) {
        for (std::size_t n = 3; n + 3 < edge.points.size(); n += 2) {
            const Crossing crossing = AcrossAt(edge, n, lens);
            AddShift(photo, Channel::Red, crossing, lens, red);
            AddShift(photo, Channel::Blue, crossing, lens, blue);
        }
    }
    if (red.size() < leastShifts || blue.size() < leastShifts) {
        return std::nullopt;
    }
    return ColourEstimates{Fitted(red), Fitted(blue)};
}

}  // namespace varnel
