// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/angle_scale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "remap/analysis/straighten/great_circle.h"
#include "remap/analysis/straighten/least_squares.h"

namespace varnel {

namespace {

using Axes = std::array<Ray, 3>;  // upright, level, away: at right angles to one another

struct TaggedEdge {
    std::size_t axis = 0;
    Ray normal;
    Scatter information;  // of the normal's direction
};

// What was built at right angles is so within this, radians.
constexpr double builtDeviation = 0.001;

TaggedEdge Tagged(const LensView& lens, const EdgeTrace& edge, double noise) {
    const CircleFit fit = FitGreatCircle(lens, edge.points);
    TaggedEdge tagged{static_cast<std::size_t>(edge.tag) - 1, fit.normal, {}};
    for (const EdgePoint& point : edge.points) {
        const double slope = lens.curve.At(Distance(point, lens.centre)).slope;
        tagged.information.Add(lens.RayAt(point), 1.0 / (noise * noise * slope * slope));
    }
    tagged.information.Add(fit.normal, 1e12);
    return tagged;
}

// How far the plane is from holding the axis, in deviations of what its points say of it.
double Miss(const TaggedEdge& edge, const Ray& axis, double scale) {
    const Ray normal = Unit({edge.normal.x, edge.normal.y, scale * edge.normal.z});
    const double variance =
        Dot(axis, edge.information.Solve(axis)) + builtDeviation * builtDeviation;
    return Dot(normal, axis) / std::sqrt(std::max(variance, 1e-18));
}

// The axis that all planes of one kind hold; at right angles to another one, if there is one.
Ray SharedAxis(const std::vector<TaggedEdge>& edges, std::size_t axis, const Ray* other) {
    Scatter planes;
    Ray first = other != nullptr ? *other : Ray{};
    Ray last;
    for (const TaggedEdge& edge : edges) {
        if (edge.axis == axis) {
            planes.Add(edge.normal, 1.0);
            first = Dot(first, first) == 0.0 ? edge.normal : first;
            last = edge.normal;
        }
    }
    if (other != nullptr) {
        planes.Add(*other, static_cast<double>(edges.size()));
    }
    return planes.Least(Unit(Cross(first, last)));
}

// Directions near those of the edges: the two kinds with most edges say.
Axes RoughAxes(const std::vector<TaggedEdge>& edges) {
    std::array<std::size_t, 3> order{0, 1, 2};
    std::ranges::stable_sort(order, std::greater(), [&](std::size_t axis) {
        return std::ranges::count(edges, axis, &TaggedEdge::axis);
    });
    Axes axes;
    const Ray best = SharedAxis(edges, order[0], nullptr);
    const Ray third = Unit(Cross(best, SharedAxis(edges, order[1], &best)));
    axes[order[0]] = best;
    axes[order[1]] = Cross(third, best);
    axes[order[2]] = third;
    return axes;
}

// Turned by a small rotation vector; stays at right angles.
Axes Turned(const Axes& axes, const double* turn) {
    const Ray vector{turn[0], turn[1], turn[2]};
    const double angle = std::sqrt(Dot(vector, vector));
    const Ray about = Unit(vector);
    Axes turned;
    for (std::size_t n = 0; n < 3; ++n) {
        const Ray side = Cross(about, axes[n]);
        const Ray across = Cross(about, side);
        const double sine = std::sin(angle);
        const double rest = 1.0 - std::cos(angle);
        turned[n] = {axes[n].x + sine * side.x + rest * across.x,
                     axes[n].y + sine * side.y + rest * across.y,
                     axes[n].z + sine * side.z + rest * across.z};
    }
    return turned;
}

struct TaggedPhoto {
    std::vector<TaggedEdge> edges;
    Axes axes;
};

std::vector<TaggedPhoto> TaggedPhotos(const LensView& lens, const std::vector<EdgeTrace>& edges,
                                      double noise) {
    std::map<int, TaggedPhoto> photos;
    for (const EdgeTrace& edge : edges) {
        if (edge.tag != EdgeTag::None && edge.points.size() > 2) {
            photos[edge.photo].edges.push_back(Tagged(lens, edge, noise));
        }
    }
    std::vector<TaggedPhoto> useful;
    for (auto& [photo, tagged] : photos) {
        if (tagged.edges.size() >= 4) {  // three only turn the axes
            tagged.axes = RoughAxes(tagged.edges);
            useful.push_back(std::move(tagged));
        }
    }
    return useful;
}

}  // namespace

AngleScale FindAngleScale(const LensView& lens, const std::vector<EdgeTrace>& edges, double noise,
                          std::optional<double> focalPixels) {
    const std::vector<TaggedPhoto> photos = TaggedPhotos(lens, edges, noise);
    const AngleScale nothing;
    const double slope = lens.curve.Radius(0.001) / 0.001;
    const auto misses = [&](const Numbers& numbers) {
        Numbers rows{numbers[0] / nothing.deviation};
        const double scale = std::exp(std::clamp(numbers[0], -1.0, 1.0));
        if (focalPixels) {
            rows.push_back(std::log(slope / scale / *focalPixels) / 0.02);
        }
        for (std::size_t n = 0; n < photos.size(); ++n) {
            const Axes axes = Turned(photos[n].axes, &numbers[1 + 3 * n]);
            for (const TaggedEdge& edge : photos[n].edges) {
                // Far misses are wrong tags.
                const double miss = Miss(edge, axes[edge.axis], scale) / 3.0;
                rows.push_back(std::copysign(3.0 * std::sqrt(std::log1p(miss * miss)), miss));
            }
        }
        return rows;
    };
    const LeastSquaresFit fit = Minimise(misses, Numbers(1 + 3 * photos.size(), 0.0), 40);
    Numbers unit(fit.parameters.size(), 0.0);
    unit[0] = 1.0;
    const double variance = SolveByRoot(Information(fit.derivatives).Root(), unit)[0];
    const double deviation = std::min(std::sqrt(variance), nothing.deviation);
    return {std::exp(fit.parameters[0]), deviation};
}

LensView WithAngleScale(const LensView& lens, double scale) {
    const double limit = lens.curve.Limit();
    const auto radius = [&](double angle) {
        return lens.curve.Radius(std::atan2(std::sin(angle) / scale, std::cos(angle)));
    };
    return {RadialCurve(radius, std::atan2(scale * std::sin(limit), std::cos(limit))), lens.centre};
}

}  // namespace varnel
