// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Straight edges of a room as a lens draws them: lines on the walls of a box around the camera.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <random>

#include "remap/analysis/straighten/great_circle.h"

namespace varnel::testing {

inline Ray Turned(const Ray& ray, const std::array<Ray, 3>& axes) {
    return {Dot(ray, axes[0]), Dot(ray, axes[1]), Dot(ray, axes[2])};
}

struct RoomShot {
    PixelSize size{6000, 4000};
    double circle = 0.0;  // radius of what is lit, pixels; 0: the whole frame
    int edges = 8;
    double noise = 0.3;  // pixels
    double bow = 0.0;    // how far things are bent themselves, pixels: one deviation
    int photo = 0;
};

// A camera held level within a few degrees, looking anywhere.
inline std::array<Ray, 3> HeldCamera(std::mt19937& random) {
    std::uniform_real_distribution<double> turn(-0.6, 0.6), tilt(-0.15, 0.15);
    const double pan = turn(random);
    const Ray forward = Unit({std::sin(pan), tilt(random), std::cos(pan)});
    const Ray right = Unit(Cross({tilt(random), 1.0, 0.0}, forward));
    return {right, Cross(forward, right), forward};
}

inline bool Shows(const RoomShot& shot, const LensView& lens, const Ray& ray) {
    const EdgePoint place = lens.PlaceOf(ray);
    const double out = Distance(place, lens.centre);
    return (shot.circle == 0.0 || out < 0.97 * shot.circle) && place.x > 0.0 &&
           place.x < shot.size.width && place.y > 0.0 && place.y < shot.size.height &&
           std::hypot(ray.x, ray.y) > 0.0 && std::atan2(std::hypot(ray.x, ray.y), ray.z) < 1.6;
}

// The longest third of the edges that there are, as one would choose them; 600 pixels or more, with
// a point every three pixels as the tracer sets them. Tagged by the room's axes.
inline std::vector<EdgeTrace> TraceRoom(const LensView& lens, const RoomShot& shot,
                                        std::mt19937& random) {
    constexpr Ray half{2.3, 1.4, 2.8};
    constexpr int samples = 2400;
    constexpr double spacing = 3.0;
    const std::array<Ray, 3> camera = HeldCamera(random);
    std::uniform_real_distribution<double> any(-1.0, 1.0);
    std::normal_distribution<double> noise(0.0, shot.noise);
    std::vector<EdgeTrace> edges;
    while (static_cast<int>(edges.size()) < 3 * shot.edges) {
        const int axis = static_cast<int>(random() % 3);
        const int wall = (axis + 1 + static_cast<int>(random() % 2)) % 3;
        std::array<double, 3> from{any(random), any(random), any(random)};
        from[static_cast<std::size_t>(wall)] = random() % 2 == 0 ? -1.0 : 1.0;
        std::array<double, 3> to = from;
        to[static_cast<std::size_t>(axis)] = any(random);
        constexpr std::array<EdgeTag, 3> tags{EdgeTag::Level, EdgeTag::Upright, EdgeTag::Away};
        EdgeTrace edge{{}, tags[static_cast<std::size_t>(axis)], shot.photo};
        const double bow = shot.bow * noise(random) / shot.noise;
        EdgePoint last{-spacing, -spacing};
        bool whole = true;
        for (int n = 0; n < samples && whole; ++n) {
            const double share = n / (samples - 1.0);
            const auto mix = [&](std::size_t k) { return from[k] + share * (to[k] - from[k]); };
            const Ray ray = Turned({half.x * mix(0), half.y * mix(1), half.z * mix(2)}, camera);
            const EdgePoint place = lens.PlaceOf(ray);
            whole = Shows(shot, lens, ray);
            if (whole && Distance(place, last) >= spacing) {
                const double off = bow * 4.0 * share * (1.0 - share);
                edge.points.push_back(
                    {place.x + off + noise(random), place.y + off + noise(random)});
                last = place;
            }
        }
        if (whole && Span(edge) > 600.0) {
            edges.push_back(std::move(edge));
        }
    }
    std::ranges::sort(edges, std::greater(), Span);
    edges.resize(static_cast<std::size_t>(shot.edges));
    return edges;
}

}  // namespace varnel::testing
