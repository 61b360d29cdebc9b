// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/edge_tracer.h"

#include <algorithm>
#include <cmath>

#include "remap/analysis/straighten/great_circle.h"

namespace varnel {

namespace {

constexpr double spacing = 3.0;  // pixels from point to point

std::vector<Crossing> CrossingsOf(const std::vector<EdgePoint>& points) {
    std::vector<Crossing> crossings;
    constexpr std::size_t beside = 3;
    for (std::size_t n = 0; n < points.size(); ++n) {
        const EdgePoint& before = points[n < beside ? 0 : n - beside];
        const EdgePoint& after = points[std::min(n + beside, points.size() - 1)];
        const double length = std::max(Distance(before, after), 1e-9);
        crossings.push_back(
            {points[n], {(before.y - after.y) / length, (after.x - before.x) / length}});
    }
    return crossings;
}

// Places on the great circle between two.
std::vector<EdgePoint> Between(const LensView& lens, const EdgePoint& from, const EdgePoint& to) {
    const Ray first = lens.RayAt(from);
    const Ray last = lens.RayAt(to);
    const double angle = std::acos(std::clamp(Dot(first, last), -1.0, 1.0));
    const int steps = static_cast<int>(std::clamp(Distance(from, to) / spacing, 10.0, 2000.0));
    std::vector<EdgePoint> places;
    for (int n = 0; n <= steps && angle > 1e-9; ++n) {
        const double share = static_cast<double>(n) / steps;
        const double a = std::sin((1.0 - share) * angle);
        const double b = std::sin(share * angle);
        places.push_back(lens.PlaceOf(
            {a * first.x + b * last.x, a * first.y + b * last.y, a * first.z + b * last.z}));
    }
    return places;
}

// The way along the crossings, in whole pixels of offset, that meets most slope in one sense while
// it moves by a pixel at most from crossing to crossing.
struct Way {
    std::vector<int> offsets;
    double gain = 0.0;
};

Way BestWay(const std::vector<std::vector<double>>& slopes, double sense) {
    const std::size_t wide = slopes.front().size();
    std::vector<double> gains(wide, 0.0);
    std::vector<std::vector<std::int8_t>> moves;
    for (const std::vector<double>& here : slopes) {
        std::vector<double> next(wide);
        std::vector<std::int8_t> move(wide, 0);
        for (std::size_t n = 0; n < wide; ++n) {
            double best = gains[n];
            for (const int side : {-1, 1}) {
                const std::size_t other = n + static_cast<std::size_t>(side);
                if (other < wide && gains[other] - 0.1 > best) {
                    best = gains[other] - 0.1;
                    move[n] = static_cast<std::int8_t>(side);
                }
            }
            // Slopes far off are marked as not a number.
            const double slope = sense * here[n];
            next[n] = std::isnan(slope) ? -1e9 : best + std::log1p(std::max(slope, 0.0));
        }
        gains = std::move(next);
        moves.push_back(std::move(move));
    }
    std::size_t at = static_cast<std::size_t>(std::ranges::max_element(gains) - gains.begin());
    Way way{std::vector<int>(slopes.size()), gains[at]};
    for (std::size_t n = slopes.size(); n-- > 0;) {
        way.offsets[n] = static_cast<int>(at) - static_cast<int>(wide / 2);
        at += static_cast<std::size_t>(static_cast<std::ptrdiff_t>(moves[n][at]));
    }
    return way;
}

// Only near the clicks the edge must be near the circle.
std::vector<std::vector<double>> SlopesNear(const Bitmap& photo,
                                            const std::vector<Crossing>& crossings, double slack,
                                            double bow) {
    const double reach = std::floor(slack + bow);
    std::vector<std::vector<double>> all;
    for (std::size_t n = 0; n < crossings.size(); ++n) {
        const double share = static_cast<double>(n) /
                             static_cast<double>(std::max<std::size_t>(crossings.size(), 2) - 1);
        const double allowed = slack + 4.0 * bow * share * (1.0 - share);
        std::vector<double> slopes = Slopes(photo, Channel::Green, crossings[n], reach, 1.0);
        for (std::size_t k = 0; k < slopes.size(); ++k) {
            if (std::fabs(static_cast<double>(k) - reach) > allowed) {
                slopes[k] = std::nan("");
            }
        }
        all.push_back(std::move(slopes));
    }
    return all;
}

// The great circle near most of the points: a way may change from one edge to another beside it.
Ray MostHeld(const LensView& lens, const std::vector<EdgePoint>& points) {
    constexpr std::size_t tries = 15;  // of each end
    constexpr double most = 1.2;       // pixels off
    std::vector<Ray> rays;
    std::vector<double> slopes;
    for (const EdgePoint& point : points) {
        rays.push_back(lens.RayAt(point));
        slopes.push_back(lens.curve.At(Distance(point, lens.centre)).slope);
    }
    Ray best;
    int bestHeld = -1;
    for (std::size_t n = 0; n < tries * tries; ++n) {
        const std::size_t from = n / tries * points.size() / (2 * tries);
        const std::size_t to = points.size() - 1 - n % tries * points.size() / (2 * tries);
        const Ray normal = Unit(Cross(rays[from], rays[to]));
        int held = 0;
        for (std::size_t k = 0; k < rays.size(); ++k) {
            held += std::fabs(Dot(normal, rays[k])) < most * slopes[k] ? 1 : 0;
        }
        best = held > bestHeld ? normal : best;
        bestHeld = std::max(held, bestHeld);
    }
    return best;
}

// Places along the one great circle near most of the points, from the first to the last of them.
std::vector<EdgePoint> OnOneCircle(const LensView& lens, const std::vector<EdgePoint>& points) {
    const Ray normal = MostHeld(lens, points);
    const auto onto = [&](const EdgePoint& point) {
        const Ray ray = lens.RayAt(point);
        const double off = Dot(normal, ray);
        return lens.PlaceOf(
            {ray.x - off * normal.x, ray.y - off * normal.y, ray.z - off * normal.z});
    };
    return Between(lens, onto(points.front()), onto(points.back()));
}

// Without those that lie off the line of their neighbours.
std::vector<EdgePoint> Smooth(const std::vector<EdgePoint>& points) {
    constexpr double most = 1.0;  // pixels
    std::vector<EdgePoint> smooth;
    for (std::size_t n = 2; n + 2 < points.size(); ++n) {
        const EdgePoint& a = points[n - 2];
        const EdgePoint& b = points[n + 2];
        const double length = std::max(Distance(a, b), 1e-9);
        const double off =
            ((points[n].x - a.x) * (b.y - a.y) - (points[n].y - a.y) * (b.x - a.x)) / length;
        if (std::fabs(off) < most) {
            smooth.push_back(points[n]);
        }
    }
    return smooth;
}

}  // namespace

std::vector<EdgePoint> SnappedToEdge(const Bitmap& photo, const std::vector<EdgePoint>& points,
                                     double reach) {
    const std::vector<Crossing> crossings = CrossingsOf(points);
    std::vector<double> slopes;
    for (const Crossing& crossing : crossings) {
        const std::vector<double> near = Slopes(photo, Channel::Green, crossing, 1.0, 1.0);
        slopes.push_back(near[0] + near[1] + near[2]);
    }
    std::vector<EdgePoint> snapped;
    for (std::size_t n = 0; n < crossings.size(); ++n) {
        // The brighter side may change along the edge, but not from point to point.
        constexpr std::size_t beside = 4;
        double sense = 0.0;
        for (std::size_t k = n - std::min(n, beside); k <= n + beside && k < slopes.size(); ++k) {
            sense += slopes[k];
        }
        if (const auto step = SteepestStep(photo, Channel::Green, crossings[n], reach,
                                           sense < 0.0 ? -1.0 : 1.0)) {
            snapped.push_back(crossings[n].At(step->offset));
        }
    }
    return Smooth(snapped);
}

EdgeTrace TraceEdge(const Bitmap& photo, const EdgePoint& from, const EdgePoint& to,
                    const LensView& lens, const TraceSearch& search) {
    const std::vector<EdgePoint> places = Between(lens, from, to);
    if (places.empty()) {
        return {};
    }
    const double slack = std::clamp(search.slack, std::max(6.0, photo.Size().width / 600.0), 60.0);
    const double bow = std::clamp(search.bow * Distance(from, to), 2.0, 80.0);
    const std::vector<Crossing> crossings = CrossingsOf(places);
    const std::vector<std::vector<double>> slopes = SlopesNear(photo, crossings, slack, bow);
    const Way brighter = BestWay(slopes, 1.0);
    const Way darker = BestWay(slopes, -1.0);
    const Way& way = brighter.gain > darker.gain ? brighter : darker;
    std::vector<EdgePoint> near;
    for (std::size_t n = 0; n < crossings.size(); ++n) {
        near.push_back(crossings[n].At(way.offsets[n]));
    }
    const bool solved = search.bow < 0.005;
    return {SnappedToEdge(photo, solved ? OnOneCircle(lens, near) : near, 2.0)};
}

}  // namespace varnel
