// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/circle_finder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numbers>

#include "remap/analysis/circle_fit.h"
#include "remap/analysis/outer_light.h"
#include "remap/analysis/rough_circle.h"

namespace varnel {

namespace {

GreyPicture Halved(const GreyPicture& picture) {
    const Grey grey(picture);
    GreyPicture half{{grey.Width() / 2, grey.Height() / 2}, {}};
    half.values.reserve(static_cast<std::size_t>(half.size.width) *
                        static_cast<std::size_t>(half.size.height));
    for (int y = 0; y < half.size.height; ++y) {
        for (int x = 0; x < half.size.width; ++x) {
            const int sum = grey.Pixel(2 * x, 2 * y) + grey.Pixel(2 * x + 1, 2 * y) +
                            grey.Pixel(2 * x, 2 * y + 1) + grey.Pixel(2 * x + 1, 2 * y + 1);
            half.values.push_back(static_cast<std::uint8_t>((sum + 2) / 4));
        }
    }
    return half;
}

// Light as the eye sees it: what is dim at the rim counts for nearly as much as what is bright. Of
// black a level stays a level.
GreyPicture Seen(const GreyPicture& picture) {
    constexpr double least = 16.0;
    GreyPicture seen{picture.size, {}};
    std::ranges::transform(picture.values, std::back_inserter(seen.values), [](int level) {
        const double scaled = 2.0 * (std::sqrt(least * (level + least)) - least);
        return static_cast<std::uint8_t>(std::lround(scaled));
    });
    return seen;
}

// The outermost clear darkening outward within reach of the circle in one direction.
std::optional<RimPoint> RimAt(const Grey& grey, const ImageCircle& circle, double angle,
                              double reach, double leastStep) {
    constexpr int blur = 5;  // samples to each side
    constexpr double step = 0.5;
    const double across = std::cos(angle);
    const double down = std::sin(angle);
    const int count = static_cast<int>(2.0 * reach / step) + 2 * blur + 1;
    const double first = circle.radius - step * (count - 1) / 2.0;
    std::vector<double> profile;
    for (int k = 0; k < count; ++k) {
        const double x = circle.x + (first + k * step) * across;
        const double y = circle.y + (first + k * step) * down;
        if (!grey.Has(x, y)) {
            break;  // the rim may be close to the picture's border
        }
        profile.push_back(grey.At(x, y));
    }
    if (profile.size() < 2 * blur + 5) {
        return std::nullopt;
    }
    std::vector<double> fall(profile.size(), 0.0);
    for (std::size_t k = blur; k + blur < profile.size(); ++k) {
        for (std::size_t i = 1; i <= blur; ++i) {
            fall[k] += (profile[k - i] - profile[k + i]) / blur;
        }
    }
    // What lies inside the rim may be brighter than the rim itself.
    const double clear = std::max(leastStep, 0.25 * *std::ranges::max_element(fall));
    auto peak = fall.end() - blur - 2;
    while (peak > fall.begin() + blur &&
           !(*peak >= clear && *peak >= *(peak + 1) && *peak > *(peak - 1))) {
        --peak;
    }
    if (peak == fall.begin() + blur) {
        return std::nullopt;
    }
    const double before = *(peak - 1);
    const double after = *(peak + 1);
    const double bend = before - 2.0 * *peak + after;
    const double shift = bend < 0.0 ? 0.5 * (before - after) / bend : 0.0;
    const double radius = first + step * (static_cast<double>(peak - fall.begin()) + shift);
    return RimPoint{angle, circle.x + radius * across, circle.y + radius * down};
}

std::vector<RimPoint> Rim(const Grey& grey, const ImageCircle& circle, double reach,
                          double leastStep) {
    std::vector<RimPoint> rim;
    constexpr int angles = 720;
    for (int i = 0; i < angles; ++i) {
        if (const auto point =
                RimAt(grey, circle, 2.0 * i * std::numbers::pi / angles, reach, leastStep)) {
            rim.push_back(*point);
        }
    }
    return rim;
}

// Whether three quarters of what lies outside are less than half as bright as the rim, and a
// quarter is black or nearly so: stray light leaves some of the dark, a wall around a window does
// not. A picture that shows next to nothing outside has no rim either.
bool IsDarkOutside(const Grey& grey, const ImageCircle& circle) {
    constexpr double black = 12.0;
    long rim = 0;
    long rimCount = 0;
    std::vector<int> outside;
    for (int y = 0; y < grey.Height(); ++y) {
        for (int x = 0; x < grey.Width(); ++x) {
            const double r = Length(x + 0.5 - circle.x, y + 0.5 - circle.y) / circle.radius;
            if (r > 1.02) {
                outside.push_back(grey.Pixel(x, y));
            } else if (r > 0.9 && r < 0.98) {
                rim += grey.Pixel(x, y);
                ++rimCount;
            }
        }
    }
    const double pixels = static_cast<double>(grey.Width()) * grey.Height();
    if (static_cast<double>(outside.size()) < 0.005 * pixels || rimCount == 0) {
        return false;
    }
    const auto levelBelow = [&outside](std::size_t quarters) {
        const auto place =
            outside.begin() + static_cast<std::ptrdiff_t>(outside.size() * quarters / 4);
        std::ranges::nth_element(outside, place);
        return static_cast<double>(*place);
    };
    const double bright = static_cast<double>(rim) / static_cast<double>(rimCount);
    return levelBelow(3) < 0.5 * bright && levelBelow(1) < std::max(black, 0.12 * bright);
}

// At a share of the radius, of what the picture shows there.
struct RingLight {
    double mean = 0.0;
    double deviation = 0.0;
};

RingLight LightAt(const Grey& grey, const ImageCircle& circle, double share) {
    constexpr int angles = 720;
    double sum = 0.0;
    double squares = 0.0;
    int count = 0;
    for (int i = 0; i < angles; ++i) {
        const double angle = 2.0 * i * std::numbers::pi / angles;
        const double x = circle.x + share * circle.radius * std::cos(angle);
        const double y = circle.y + share * circle.radius * std::sin(angle);
        if (grey.Has(x, y)) {
            const double level = grey.At(x, y);
            sum += level;
            squares += level * level;
            ++count;
        }
    }
    const double mean = sum / std::max(count, 1);
    return {mean, std::sqrt(std::max(squares / std::max(count, 1) - mean * mean, 0.0))};
}

// Whether the light ends there: a spotlight or the halo of a lamp fades away slowly. Lenses end
// within two hundredths of the radius, though it may be much darker at the rim than farther in.
bool EndsAt(const Grey& grey, const ImageCircle& circle) {
    const double step = LightAt(grey, circle, 0.975).mean - LightAt(grey, circle, 1.025).mean;
    const double all = LightAt(grey, circle, 0.9).mean - LightAt(grey, circle, 1.1).mean;
    return step > 0.4 * all;
}

// Light between leaves, as no lamp has around itself.
bool IsPatchy(const Grey& grey, const ImageCircle& circle) {
    const RingLight light = LightAt(grey, circle, 0.9);
    return light.deviation > 0.6 * light.mean;
}

// Where the rim shows as a step from light to dark.
std::optional<FoundCircle> CircleByRim(const GreyPicture& picture) {
    constexpr double leastShare = 0.4;
    constexpr std::size_t leastPoints = 40;
    const GreyPicture half = Halved(picture);
    const RoughCircle rough = FindRoughCircle(Grey(half));
    if (rough.share < leastShare) {
        return std::nullopt;
    }
    ImageCircle circle{2.0 * rough.circle.x, 2.0 * rough.circle.y, 2.0 * rough.circle.radius};
    const GreyPicture seen = Seen(picture);
    // Of the step of a soft rim a third is within the few pixels that are compared there.
    const double leastStep = rough.leastStep / 3.0;
    double error = 0.0;
    for (const double reach : {0.025, 0.015, 0.01, 0.008}) {
        const std::vector<RimPoint> rim =
            Rim(Grey(seen), circle, std::max(reach * circle.radius, 3.0), leastStep);
        if (rim.size() < leastPoints) {
            return std::nullopt;
        }
        for (int step = 0; step < 10; ++step) {
            circle = Fitted(rim, circle);
        }
        error = FitError(rim, circle);
    }
    // The steepest place of a soft rim, for which a lens that darkens toward it makes no lesser one
    // than the place of half the light, is off by that: measured on drawn rims.
    error = std::hypot(error, 0.0012 * circle.radius);
    const Grey grey(picture);
    if (!MayBe(circle, grey) || !IsDarkOutside(grey, circle) || !EndsAt(grey, circle)) {
        return std::nullopt;
    }
    return FoundCircle{circle, error};
}

}  // namespace

std::optional<FoundCircle> FindImageCircle(const GreyPicture& picture) {
    constexpr int leastSide = 64;
    if (std::min(picture.size.width, picture.size.height) < leastSide) {
        return std::nullopt;
    }
    if (const auto circle = CircleByRim(picture)) {
        return circle;
    }
    constexpr double roughly = 0.03;  // of the radius
    const auto circle = CircleAroundLight(Grey(picture));
    const Grey grey(picture);
    if (!circle || !(EndsAt(grey, *circle) || IsPatchy(grey, *circle))) {
        return std::nullopt;
    }
    return FoundCircle{*circle, roughly * circle->radius, true};
}

}  // namespace varnel
