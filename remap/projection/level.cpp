// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/level.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "remap/projection/rays.h"

#include "base/rounding.h"

namespace varnel {

namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr std::size_t triedRays = 48;  // their pairs are the planes that are tried

double MedianDistance(std::span<const Ray> rays, const Ray& normal, std::vector<double>& room) {
    room.clear();
    for (const Ray& ray : rays) {
        room.push_back(std::fabs(Dot(ray, normal)));
    }
    const auto middle = room.begin() + static_cast<std::ptrdiff_t>(room.size() / 2);
    std::ranges::nth_element(room, middle);
    return std::asin(std::min(*middle, 1.0));
}

std::vector<Ray> Sample(std::span<const Ray> rays) {
    std::vector<Ray> sample;
    const std::size_t count = std::min(rays.size(), triedRays);
    for (std::size_t i = 0; i < count; ++i) {
        sample.push_back(rays[i * (rays.size() - 1) / std::max<std::size_t>(count - 1, 1)]);
    }
    return sample;
}

// The plane through two of the rays to which the median ray is nearest.
std::optional<Ray> BestOfPairs(std::span<const Ray> rays) {
    constexpr double nearestPair = 1e-3;  // radians; closer ones fix no plane
    const std::vector<Ray> sample = Sample(rays);
    std::vector<double> room;
    std::optional<Ray> best;
    double least = 2.0;
    for (std::size_t i = 0; i < sample.size(); ++i) {
        for (std::size_t j = i + 1; j < sample.size(); ++j) {
            const Ray across = Cross(sample[i], sample[j]);
            if (Dot(across, across) < nearestPair * nearestPair) {
                continue;
            }
            const Ray normal = Unit(across);
            if (const double median = MedianDistance(rays, normal, room); median < least) {
                least = median;
                best = normal;
            }
        }
    }
    return best;
}

using Matrix = std::array<std::array<double, 3>, 3>;

// The eigenvector of a symmetric matrix that belongs to its smallest eigenvalue, by Jacobi's
// rotations.
Ray SmallestEigenvector(Matrix a) {
    Matrix vectors{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};
    for (int step = 0; step < 30; ++step) {
        const std::size_t p = step % 3 == 2 ? 1 : 0;
        const std::size_t q = step % 3 == 0 ? 1 : 2;
        const double angle = 0.5 * std::atan2(2.0 * a[p][q], a[q][q] - a[p][p]);
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        for (std::size_t k = 0; k < 3; ++k) {
            const double left = a[k][p];
            a[k][p] = c * left - s * a[k][q];
            a[k][q] = s * left + c * a[k][q];
        }
        for (std::size_t k = 0; k < 3; ++k) {
            const double top = a[p][k];
            a[p][k] = c * top - s * a[q][k];
            a[q][k] = s * top + c * a[q][k];
            const double left = vectors[k][p];
            vectors[k][p] = c * left - s * vectors[k][q];
            vectors[k][q] = s * left + c * vectors[k][q];
        }
    }
    const std::size_t least = a[0][0] <= a[1][1] && a[0][0] <= a[2][2] ? 0
                              : a[1][1] <= a[2][2]                     ? 1
                                                                       : 2;
    return {vectors[0][least], vectors[1][least], vectors[2][least]};
}

// Tukey's weight: none beyond four and a half standard deviations.
double Weight(double distance, double deviation) {
    const double share = distance / (4.685 * deviation);
    return std::fabs(share) >= 1.0 ? 0.0 : (1.0 - share * share) * (1.0 - share * share);
}

double Deviation(double median) {
    constexpr double least = 1e-6;  // radians; exact rays have to count, too
    return std::max(1.4826 * median, least);
}

// Total least squares: the sum of squared distances from the plane is the least there is.
Ray Refined(std::span<const Ray> rays, const Ray& normal, double deviation) {
    Matrix sums{};
    for (const Ray& ray : rays) {
        const double weight = Weight(Dot(ray, normal), deviation);
        const std::array<double, 3> part{ray.x, ray.y, ray.z};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t j = 0; j < 3; ++j) {
                sums[i][j] += weight * part[i] * part[j];
            }
        }
    }
    return SmallestEigenvector(sums);
}

double LengthAlong(std::span<const Ray> rays, const Ray& normal, double deviation) {
    std::vector<Ray> counted;
    for (const Ray& ray : rays) {
        if (Weight(Dot(ray, normal), deviation) > 0.0) {
            counted.push_back(ray);
        }
    }
    double least = 1.0;  // the cosine
    for (const Ray& one : Sample(counted)) {
        for (const Ray& other : counted) {
            least = std::min(least, Dot(one, other));
        }
    }
    return std::acos(std::max(least, -1.0));
}

LevelTurn TurnFor(const Ray& normal, float effectPercent) {
    const double effect = NonZero(static_cast<double>(effectPercent), "EffectRectilinear");
    return {std::asin(std::clamp(normal.z, -1.0, 1.0)) / degree * 100.0 / effect,
            std::atan2(-normal.x, normal.y) / degree};
}

double Distance(const LevelTurn& one, const LevelTurn& other) {
    return std::hypot(one.x - other.x, std::remainder(one.z - other.z, 360.0));
}

}  // namespace

std::optional<Ray> SourceRay(const RectilinearView& view, const SourceOffset& offset) {
    NonZero(static_cast<double>(view.curve.scale), "LensMapScale");
    NonZero(static_cast<double>(view.curve.factor), "LensMapFactor");
    const double scale = view.source.PixelsPerMillimetre() *
                         EffectRatio(view.outputAov, view.effect, view.kind, view.curve);
    const double distance = std::hypot(offset.u, offset.v);
    if (distance == 0.0) {
        return Ray{0.0, 0.0, 1.0};
    }
    const double theta =
        LensAngle(view.kind, distance / NonZero(scale, ReasonCode::Scale), view.curve);
    if (!(theta >= 0.0 && theta <= std::numbers::pi)) {
        return std::nullopt;
    }
    const double side = std::sin(theta) / distance;
    return Ray{side * offset.u, side * offset.v, std::cos(theta)};
}

std::optional<HorizonFit> FitHorizon(std::span<const Ray> rays) {
    std::optional<Ray> normal = BestOfPairs(rays);
    if (!normal) {
        return std::nullopt;
    }
    std::vector<double> room;
    const double deviation = Deviation(MedianDistance(rays, *normal, room));
    for (int step = 0; step < 8; ++step) {
        normal = Refined(rays, *normal, deviation);
    }
    return HorizonFit{*normal, MedianDistance(rays, *normal, room),
                      LengthAlong(rays, *normal, deviation)};
}

// Level, the plane's normal is the vertical (0, 1, 0). RayRotation takes that to
// (-sinZ cosX, cosZ cosX, sinX): the pan leaves it alone.
LevelTurn TurnForHorizon(const Ray& normal, float effectPercent, const LevelTurn& present) {
    const LevelTurn upright = TurnFor(normal, effectPercent);
    const LevelTurn over = TurnFor({-normal.x, -normal.y, -normal.z}, effectPercent);
    return Distance(upright, present) <= Distance(over, present) ? upright : over;
}

// Not panned, RayRotation takes the view's axis to (sinZ sinX, -cosZ sinX, cosX).
LevelTurn TurnForPole(const Ray& normal, const LevelTurn& present) {
    const double x = present.x * degree;
    const double z = present.z * degree;
    const Ray axis{std::sin(z) * std::sin(x), -std::cos(z) * std::sin(x), std::cos(x)};
    const double side = Dot(axis, normal) < 0.0 ? -1.0 : 1.0;
    const Ray pole{side * normal.x, side * normal.y, side * normal.z};
    const double tilt = std::acos(std::clamp(pole.z, -1.0, 1.0)) / degree;
    const double across = std::hypot(pole.x, pole.y);
    constexpr double unfelt = 1e-9;  // along the axis every roll is as good
    const double roll = across < unfelt ? present.z : std::atan2(pole.x, -pole.y) / degree;
    const LevelTurn down{tilt, roll};
    const LevelTurn up{-tilt, std::remainder(roll + 180.0, 360.0)};
    return Distance(down, present) <= Distance(up, present) ? down : up;
}

}  // namespace varnel
