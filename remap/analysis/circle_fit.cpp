// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/circle_fit.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace varnel {

namespace {

double MedianResidual(const std::vector<RimPoint>& rim, const ImageCircle& circle) {
    std::vector<double> sizes;
    for (const RimPoint& point : rim) {
        sizes.push_back(std::fabs(Residual(point, circle)));
    }
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::ranges::nth_element(sizes, middle);
    return *middle;
}

}  // namespace

ImageCircle Fitted(const std::vector<RimPoint>& rim, const ImageCircle& circle) {
    const double limit = 4.685 * std::max(1.4826 * MedianResidual(rim, circle), 0.1);
    std::array<std::array<double, 4>, 3> sums{};
    for (const RimPoint& point : rim) {
        const double residual = Residual(point, circle);
        const double share = std::min(std::fabs(residual) / limit, 1.0);
        const double weight = (1.0 - share * share) * (1.0 - share * share);
        const double distance = residual + circle.radius;
        const std::array<double, 4> row{(point.x - circle.x) / distance,
                                        (point.y - circle.y) / distance, 1.0, residual};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t j = 0; j < 4; ++j) {
                sums[i][j] += weight * row[i] * row[j];
            }
        }
    }
    for (std::size_t i = 0; i < 3; ++i) {
        if (std::fabs(sums[i][i]) < 1e-9) {
            return circle;
        }
        for (std::size_t k = 0; k < 3; ++k) {
            const double factor = k == i ? 0.0 : sums[k][i] / sums[i][i];
            for (std::size_t j = 0; j < 4; ++j) {
                sums[k][j] -= factor * sums[i][j];
            }
        }
    }
    return {circle.x + sums[0][3] / sums[0][0], circle.y + sums[1][3] / sums[1][1],
            circle.radius + sums[2][3] / sums[2][2]};
}

double FitError(const std::vector<RimPoint>& rim, const ImageCircle& circle) {
    constexpr std::size_t sides = 8;
    double sum = 0.0;
    for (std::size_t side = 0; side < sides; ++side) {
        std::vector<RimPoint> rest;
        std::ranges::copy_if(rim, std::back_inserter(rest), [&](const RimPoint& point) {
            return SideOf(std::cos(point.angle), std::sin(point.angle), sides) != side;
        });
        ImageCircle without = circle;
        for (int step = 0; step < 4; ++step) {
            without = Fitted(rest, without);
        }
        const double moved = std::max(Length(without.x - circle.x, without.y - circle.y),
                                      std::fabs(without.radius - circle.radius));
        sum += moved * moved;
    }
    return std::sqrt(sum * (sides - 1) / sides);
}

}  // namespace varnel
