// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/edge_step.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "remap/image/levels/byte_coding.h"

namespace varnel {

namespace {

constexpr double smoothing = 1.0;    // deviation, pixels
constexpr double kernelReach = 2.5;  // pixels
constexpr double leastSlope = 1.5;   // levels per pixel

// Between pixels linearly; the border goes on outside.
double LevelAt(const Bitmap& photo, Channel channel, const EdgePoint& place) {
    const PixelSize size = photo.Size();
    const double x = std::clamp(place.x - 0.5, 0.0, size.width - 1.001);
    const double y = std::clamp(place.y - 0.5, 0.0, size.height - 1.001);
    const int column = static_cast<int>(x);
    const int row = static_cast<int>(y);
    const ByteCoding coding(photo);
    const auto at = [&](int right, int up) {
        const int line = std::min(row + up, size.height - 1);
        const int pixel = std::min(column + right, size.width - 1);
        const std::uint8_t* const level =
            photo.ScanLine(line).data() + pixel * PixelStep(photo.Format());
        return static_cast<double>(coding.ColourAt(level).*MemberOf(channel));
    };
    const double across = x - column;
    const double up = y - row;
    return (1.0 - up) * ((1.0 - across) * at(0, 0) + across * at(1, 0)) +
           up * ((1.0 - across) * at(0, 1) + across * at(1, 1));
}

}  // namespace

std::vector<double> Slopes(const Bitmap& photo, Channel channel, const Crossing& crossing,
                           double reach, double spacing) {
    const int half = static_cast<int>(reach / spacing);
    const int wide = static_cast<int>(kernelReach / spacing);
    std::vector<double> levels;
    for (int n = -half - wide; n <= half + wide; ++n) {
        double sum = 0.0;
        for (const double beside : {-1.0, 0.0, 1.0}) {
            const EdgePoint place = crossing.At(n * spacing);
            sum +=
                LevelAt(photo, channel,
                        {place.x - beside * crossing.along.y, place.y + beside * crossing.along.x});
        }
        levels.push_back(sum / 3.0);
    }
    std::vector<double> weights;
    double unit = 0.0;
    for (int n = 1; n <= wide; ++n) {
        const double away = n * spacing / smoothing;
        weights.push_back(away * std::exp(-0.5 * away * away));
        unit += 2.0 * n * spacing * weights.back();
    }
    std::vector<double> slopes;
    for (int n = wide; n <= wide + 2 * half; ++n) {
        double sum = 0.0;
        for (int k = 1; k <= wide; ++k) {
            sum +=
                weights[static_cast<std::size_t>(k - 1)] *
                (levels[static_cast<std::size_t>(n + k)] - levels[static_cast<std::size_t>(n - k)]);
        }
        slopes.push_back(sum / unit);
    }
    return slopes;
}

std::optional<Step> SteepestStep(const Bitmap& photo, Channel channel, const Crossing& crossing,
                                 double reach, double sense) {
    constexpr double spacing = 0.5;
    const std::vector<double> slopes = Slopes(photo, channel, crossing, reach, spacing);
    std::size_t best = 0;
    for (std::size_t n = 0; n < slopes.size(); ++n) {
        best = sense * slopes[n] > sense * slopes[best] ? n : best;
    }
    if (best == 0 || best + 1 >= slopes.size() || sense * slopes[best] < leastSlope) {
        return std::nullopt;
    }
    const double before = slopes[best - 1];
    const double after = slopes[best + 1];
    const double bow = before - 2.0 * slopes[best] + after;
    const double part = bow != 0.0 ? 0.5 * (before - after) / bow : 0.0;
    const double middle = static_cast<double>(slopes.size() / 2);
    return Step{(static_cast<double>(best) - middle + part) * spacing, slopes[best]};
}

}  // namespace varnel
