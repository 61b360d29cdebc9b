// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Products of rays. Throws nothing.
#pragma once

#include <cmath>

#include "remap/projection/geometry.h"

namespace varnel {

inline double Dot(const Ray& a, const Ray& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Ray Cross(const Ray& a, const Ray& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Length 1; the z axis for a ray of no length.
inline Ray Unit(const Ray& ray) {
    const double length = std::sqrt(Dot(ray, ray));
    return length > 0.0 ? Ray{ray.x / length, ray.y / length, ray.z / length} : Ray{0.0, 0.0, 1.0};
}

}  // namespace varnel
