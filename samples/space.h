// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Points and directions of the sample scene: x to the right, y up, z straight ahead, in metres.
#pragma once

#include <algorithm>
#include <cmath>

#include "remap/projection/geometry.h"

namespace varnel::sample {

inline double Dot(const Ray& a, const Ray& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Ray Minus(const Ray& a, const Ray& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Ray Unit(const Ray& ray) {
    const double length = std::sqrt(Dot(ray, ray));
    return {ray.x / length, ray.y / length, ray.z / length};
}

// A beam of light: where it starts and its direction, with the direction's reciprocals.
struct Beam {
    Beam(const Ray& start, const Ray& along)
        : from(start),
          direction(along),
          inverse{Inverse(along.x), Inverse(along.y), Inverse(along.z)} {}

    Ray At(double distance) const {
        return {from.x + distance * direction.x, from.y + distance * direction.y,
                from.z + distance * direction.z};
    }

    Ray from;
    Ray direction;
    Ray inverse;

  private:
    // Large but finite, so that a slab of a box never meets 0 times infinity.
    static double Inverse(double x) { return x == 0.0 ? 1e30 : 1.0 / x; }
};

// A beam inside a box aligned with the axes: the distances where it enters and leaves, and the axis
// (0, 1 or 2) whose face it enters through. It misses when enter > leave.
struct Span {
    double enter;
    double leave;
    int axis;
};

struct Box {
    Ray low;
    Ray high;

    Span Cut(const Beam& beam) const {
        const double x1 = (low.x - beam.from.x) * beam.inverse.x;
        const double x2 = (high.x - beam.from.x) * beam.inverse.x;
        const double y1 = (low.y - beam.from.y) * beam.inverse.y;
        const double y2 = (high.y - beam.from.y) * beam.inverse.y;
        const double z1 = (low.z - beam.from.z) * beam.inverse.z;
        const double z2 = (high.z - beam.from.z) * beam.inverse.z;
        const double x = std::min(x1, x2);
        const double y = std::min(y1, y2);
        const double z = std::min(z1, z2);
        const double enter = std::max(std::max(x, y), z);
        const double leave =
            std::min(std::min(std::max(x1, x2), std::max(y1, y2)), std::max(z1, z2));
        return {enter, leave, enter == x ? 0 : enter == y ? 1 : 2};
    }
};

struct Ball {
    Ray centre;
    double radius;

    // The distance at which the beam meets the ball from outside; negative when it misses.
    double Distance(const Beam& beam) const {
        const Ray offset = Minus(centre, beam.from);
        const double along = Dot(offset, beam.direction);
        const double root = along * along - Dot(offset, offset) + radius * radius;
        return root < 0.0 ? -1.0 : along - std::sqrt(root);
    }
};

}  // namespace varnel::sample
