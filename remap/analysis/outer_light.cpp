// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/outer_light.h"

#include <array>
#include <numbers>

#include "remap/analysis/circle_fit.h"

namespace varnel {

namespace {

constexpr int angles = 1440;

// The level that nearly all pixels of the four corners keep below; nothing when one of them shows
// something.
std::optional<double> CornerLevel(const Grey& grey) {
    constexpr int darkest = 24;  // of what passes as black
    const int side = static_cast<int>(grey.Longer()) / 16;
    int level = 0;
    for (const int left : {0, grey.Width() - side}) {
        for (const int top : {0, grey.Height() - side}) {
            std::vector<int> pixels;
            for (int y = top; y < top + side; ++y) {
                for (int x = left; x < left + side; ++x) {
                    pixels.push_back(grey.Pixel(x, y));
                }
            }
            const auto most = pixels.begin() + static_cast<std::ptrdiff_t>(pixels.size() * 49 / 50);
            std::ranges::nth_element(pixels, most);
            level = std::max(level, *most);
        }
    }
    return level <= darkest ? std::optional<double>(level) : std::nullopt;
}

// The mean of the nine pixels there.
double Calm(const Grey& grey, double x, double y) {
    double sum = 0.0;
    for (const double down : {-1.0, 0.0, 1.0}) {
        for (const double right : {-1.0, 0.0, 1.0}) {
            sum += grey.At(x + right, y + down);
        }
    }
    return sum / 9.0;
}

// The first light on the way from the picture's border toward the middle: where it has half the
// brightness that it reaches shortly after.
std::optional<RimPoint> OuterLightAt(const Grey& grey, const ImageCircle& middle, double angle,
                                     double black) {
    constexpr double step = 0.5;
    constexpr double least = 1.0;  // grey levels above black
    constexpr int shortly = 6;     // steps
    const double across = std::cos(angle);
    const double down = std::sin(angle);
    std::array<double, shortly + 1> ahead{};
    const auto light = [&](double r) {
        return Calm(grey, middle.x + r * across, middle.y + r * down) - black;
    };
    for (double r = middle.radius; r > 0.0; r -= step) {
        if (!grey.Has(middle.x + r * across, middle.y + r * down) || light(r) < least) {
            continue;
        }
        for (std::size_t k = 0; k < ahead.size(); ++k) {
            ahead.at(k) = light(r - static_cast<double>(k) * step);
        }
        const double half = *std::ranges::max_element(ahead) / 2.0;
        std::size_t k = 0;
        while (ahead.at(k) < half) {
            ++k;
        }
        const double before = k > 0 ? ahead.at(k - 1) : light(r + step);
        const double part = std::clamp((ahead.at(k) - half) / (ahead.at(k) - before), 0.0, 1.0);
        const double edge = r - step * (static_cast<double>(k) - part);
        return RimPoint{angle, middle.x + edge * across, middle.y + edge * down};
    }
    return std::nullopt;
}

// Specks stand alone and so do most twigs: what may be rim goes on to both sides.
std::vector<RimPoint> OuterLight(const Grey& grey, double black) {
    const ImageCircle middle{grey.Width() / 2.0, grey.Height() / 2.0,
                             Length(grey.Width() / 2.0, grey.Height() / 2.0)};
    std::vector<std::optional<RimPoint>> all;
    for (int i = 0; i < angles; ++i) {
        all.push_back(OuterLightAt(grey, middle, 2.0 * i * std::numbers::pi / angles, black));
    }
    std::vector<RimPoint> lasting;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto isNear = [&](std::size_t other) {
            constexpr double near = 2.5;  // pixels
            const auto& point = all[other % all.size()];
            return point && std::fabs(Residual(*point, middle) - Residual(*all[i], middle)) < near;
        };
        if (all[i] && isNear(i + 1) && isNear(i + all.size() - 1)) {
            lasting.push_back(*all[i]);
        }
    }
    return lasting;
}

// Those that no circle can leave out without cutting some light off: the corners of the convex
// hull.
std::vector<RimPoint> Hull(std::vector<RimPoint> points) {
    std::ranges::sort(points, {}, [](const RimPoint& p) { return std::pair(p.x, p.y); });
    std::vector<RimPoint> hull;
    const auto add = [&hull](const RimPoint& point, std::size_t least) {
        while (hull.size() > least) {
            const RimPoint& a = hull[hull.size() - 2];
            const RimPoint& b = hull.back();
            if ((b.x - a.x) * (point.y - a.y) - (b.y - a.y) * (point.x - a.x) > 0.0) {
                break;
            }
            hull.pop_back();
        }
        hull.push_back(point);
    };
    for (const RimPoint& point : points) {
        add(point, 1);
    }
    const std::size_t there = hull.size();
    for (auto point = points.rbegin(); point != points.rend(); ++point) {
        add(*point, there);
    }
    return hull;
}

// How well the rim bounds the light: long smooth stretches count for more than as many points
// apart, which a circle meets by chance, and light near all of the rim for more than a gap on one
// side. Nothing when more than a hundredth of the light is outside.
double Bounding(const std::vector<RimPoint>& light, const ImageCircle& circle) {
    constexpr double tolerance = 1.2;
    constexpr double outside = 2.0;
    std::size_t out = 0;
    double score = 0.0;
    double stretch = 0.0;
    double length = 0.0;
    double filled = 0.0;
    for (const RimPoint& point : light) {
        const double off = Residual(point, circle);
        const double gap = off / (0.1 * circle.radius);
        out += off > outside ? 1 : 0;
        filled += 1.0 / (1.0 + gap * gap);
        if (std::fabs(off) < tolerance) {
            stretch += 1.0 - off * off / (tolerance * tolerance);
            length += 1.0;
        } else {
            score += stretch * length;
            stretch = length = 0.0;
        }
    }
    return out * 100 > light.size() ? 0.0 : (score + stretch * length) * filled;
}

// Whether the picture shows most of the rim and light comes near to it on most sides, as it does
// not when a lamp shines in the dark.
bool IsAllRound(const std::vector<RimPoint>& light, const ImageCircle& circle, const Grey& grey) {
    constexpr double near = 0.8;  // in radii
    constexpr std::size_t sides = 24;
    constexpr double most = 0.75;  // of the sides and of the rim
    std::array<bool, sides> lit{};
    std::array<bool, sides> shown{};
    for (const RimPoint& point : light) {
        const double across = point.x - circle.x;
        const double down = point.y - circle.y;
        if (Length(across, down) > near * circle.radius) {
            lit.at(SideOf(across, down, sides)) = true;
        }
    }
    for (std::size_t side = 0; side < sides; ++side) {
        const double angle = 2.0 * static_cast<double>(side) * std::numbers::pi / sides;
        shown.at(side) = grey.Has(circle.x + circle.radius * std::cos(angle),
                                  circle.y + circle.radius * std::sin(angle));
    }
    return static_cast<double>(std::ranges::count(lit, true)) >= most * sides &&
           static_cast<double>(std::ranges::count(shown, true)) >= most * sides;
}

// The circle through three corners that, with light all round, bounds the light best. Of many
// corners only every n-th is tried.
std::optional<ImageCircle> Bound(const std::vector<RimPoint>& light, const Grey& grey) {
    constexpr std::size_t enough = 60;
    const std::vector<RimPoint> hull = Hull(light);
    const std::size_t step = hull.size() / enough + 1;
    std::optional<ImageCircle> best;
    double most = 0.0;
    for (std::size_t a = 0; a < hull.size(); a += step) {
        for (std::size_t b = a + step; b < hull.size(); b += step) {
            for (std::size_t c = b + step; c < hull.size(); c += step) {
                const auto circle = Through(hull[a], hull[b], hull[c]);
                const double score =
                    circle && MayBe(*circle, grey) ? Bounding(light, *circle) : 0.0;
                if (score > most && IsAllRound(light, *circle, grey)) {
                    most = score;
                    best = circle;
                }
            }
        }
    }
    return best;
}

}  // namespace

std::optional<ImageCircle> CircleAroundLight(const Grey& grey) {
    const std::optional<double> black = CornerLevel(grey);
    if (!black) {
        return std::nullopt;
    }
    return Bound(OuterLight(grey, *black), grey);
}

}  // namespace varnel
