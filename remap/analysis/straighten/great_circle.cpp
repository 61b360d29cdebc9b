// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/great_circle.h"

#include <cmath>

namespace varnel {

namespace {

// A point's ray, and how the ray moves over the picture, per pixel outward and around.
struct MovingRay {
    Ray ray, outward, around;

    MovingRay(const LensView& lens, const EdgePoint& place) {
        const double x = place.x - lens.centre.x;
        const double y = place.y - lens.centre.y;
        const double radius = std::max(std::sqrt(x * x + y * y), 1e-6);
        const auto [angle, slope] = lens.curve.At(radius);
        const double sine = std::sin(angle);
        const double cosine = std::cos(angle);
        const double across = x / radius;
        const double up = y / radius;
        ray = {across * sine, up * sine, cosine};
        outward = {across * cosine * slope, up * cosine * slope, -sine * slope};
        around = {-up * sine / radius, across * sine / radius, 0.0};
    }
    // How fast the distance from a plane grows across the edge, per pixel.
    double Slope(const Ray& normal) const {
        const double out = Dot(normal, outward);
        const double across = Dot(normal, around);
        return std::max(std::sqrt(out * out + across * across), 1e-9);
    }
};

}  // namespace

void Scatter::Add(const Ray& ray, double weight) {
    xx += weight * ray.x * ray.x;
    xy += weight * ray.x * ray.y;
    xz += weight * ray.x * ray.z;
    yy += weight * ray.y * ray.y;
    yz += weight * ray.y * ray.z;
    zz += weight * ray.z * ray.z;
}

Ray Scatter::Solve(const Ray& ray) const {
    const double little = 1e-13 * (xx + yy + zz) + 1e-300;
    const Ray first{xx + little, xy, xz};
    const Ray second{xy, yy + little, yz};
    const Ray third{xz, yz, zz + little};
    const Ray a = Cross(second, third);
    const Ray b = Cross(third, first);
    const Ray c = Cross(first, second);
    const double volume = Dot(first, a);
    const double scale = volume > 0.0 ? 1.0 / volume : 1.0;
    return {scale * (a.x * ray.x + b.x * ray.y + c.x * ray.z),
            scale * (a.y * ray.x + b.y * ray.y + c.y * ray.z),
            scale * (a.z * ray.x + b.z * ray.y + c.z * ray.z)};
}

double Scatter::Along(const Ray& ray) const {
    return ray.x * (xx * ray.x + 2.0 * (xy * ray.y + xz * ray.z)) +
           ray.y * (yy * ray.y + 2.0 * yz * ray.z) + zz * ray.z * ray.z;
}

Ray Scatter::Least(const Ray& start) const {
    Ray least = start;
    for (int round = 0; round < 4; ++round) {
        least = Unit(Solve(least));
    }
    return least;
}

CircleFit FitGreatCircle(const LensView& lens, const std::vector<EdgePoint>& points) {
    CircleFit fit{{0.0, 0.0, 1.0}, std::vector<double>(points.size(), 0.0), 0.0};
    if (points.size() < 2) {
        return fit;
    }
    std::vector<MovingRay> rays;
    rays.reserve(points.size());
    for (const EdgePoint& point : points) {
        rays.emplace_back(lens, point);
    }
    fit.normal = Unit(Cross(rays.front().ray, rays.back().ray));
    for (int round = 0; round < 2; ++round) {
        Scatter scatter;
        for (const MovingRay& one : rays) {
            const double slope = one.Slope(fit.normal);
            scatter.Add(one.ray, 1.0 / (slope * slope));
        }
        fit.normal = scatter.Least(fit.normal);
    }
    double sum = 0.0;
    for (std::size_t n = 0; n < points.size(); ++n) {
        const double residual = Dot(fit.normal, rays[n].ray) / rays[n].Slope(fit.normal);
        fit.residuals[n] = residual;
        sum += residual * residual;
    }
    fit.rms = std::sqrt(sum / static_cast<double>(points.size()));
    return fit;
}

}  // namespace varnel
