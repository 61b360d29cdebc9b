// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/rough_circle.h"

#include <array>
#include <numbers>
#include <random>

#include "remap/analysis/circle_fit.h"

namespace varnel {

namespace {

constexpr std::size_t angles = 360;

// A place where the picture becomes brighter on the way in.
struct Edge {
    double x = 0.0;
    double y = 0.0;
    double inX = 0.0;  // unit direction toward the brighter side
    double inY = 0.0;
    bool first = false;  // nothing was brighter on the way to it
};

struct Way {
    int x;  // where it begins
    int y;
    int stepX;
    int stepY;
};

// The first brightenings on one way from the border into the picture.
void CollectOnWay(const Grey& grey, double leastStep, const Way& way, std::vector<Edge>& edges) {
    constexpr int mostOnWay = 2;
    const int length = (way.stepX != 0 ? grey.Width() : grey.Height()) * 6 / 10;
    const auto at = [&](int k) { return grey.Pixel(way.x + k * way.stepX, way.y + k * way.stepY); };
    const auto rise = [&](int k) { return at(k + 1) + at(k + 2) - at(k - 1) - at(k - 2); };
    int found = 0;
    for (int k = 3; k < length - 3 && found < mostOnWay; ++k) {
        const int here = rise(k);
        if (here < 2 * leastStep || here < rise(k - 1) || here <= rise(k + 1)) {
            continue;
        }
        const int px = way.x + k * way.stepX;
        const int py = way.y + k * way.stepY;
        if (px < 2 || py < 2 || px >= grey.Width() - 2 || py >= grey.Height() - 2) {
            continue;
        }
        const double right = grey.Pixel(px + 2, py) + grey.Pixel(px + 1, py) -
                             grey.Pixel(px - 1, py) - grey.Pixel(px - 2, py);
        const double down = grey.Pixel(px, py + 2) + grey.Pixel(px, py + 1) -
                            grey.Pixel(px, py - 1) - grey.Pixel(px, py - 2);
        const double size = Length(right, down);
        edges.push_back({px + 0.5, py + 0.5, right / size, down / size, found == 0});
        ++found;
    }
}

std::vector<Edge> CollectEdges(const Grey& grey, double leastStep) {
    std::vector<Edge> edges;
    for (int y = 2; y < grey.Height() - 2; ++y) {
        CollectOnWay(grey, leastStep, {0, y, 1, 0}, edges);
        CollectOnWay(grey, leastStep, {grey.Width() - 1, y, -1, 0}, edges);
    }
    for (int x = 2; x < grey.Width() - 2; ++x) {
        CollectOnWay(grey, leastStep, {x, 0, 0, 1}, edges);
        CollectOnWay(grey, leastStep, {x, grey.Height() - 1, 0, -1}, edges);
    }
    return edges;
}

// Whether the edge lies on the rim and its brighter side is the inner one.
bool IsOn(const Edge& edge, const ImageCircle& circle, double tolerance) {
    constexpr double leastAgreement = 0.9;  // the cosine
    const double x = circle.x - edge.x;
    const double y = circle.y - edge.y;
    const double distance = Length(x, y);
    return std::fabs(distance - circle.radius) <= tolerance &&
           x * edge.inX + y * edge.inY >= leastAgreement * distance;
}

using Angles = std::array<bool, angles>;

// Edges beyond this are outside the rim.
double Outer(const ImageCircle& circle, double tolerance) {
    return circle.radius + 2.0 * tolerance;
}

int VisibleAngles(const ImageCircle& circle, const Grey& grey) {
    int visible = 0;
    for (std::size_t i = 0; i < angles; ++i) {
        const double angle =
            (2.0 * (static_cast<double>(i) + 0.5) / angles - 1.0) * std::numbers::pi;
        visible += grey.Has(circle.x + circle.radius * std::cos(angle),
                            circle.y + circle.radius * std::sin(angle));
    }
    return visible;
}

// How much of the rim that the picture can show is there, less where something bright is outside.
double Coverage(const std::vector<Edge>& edges, const ImageCircle& circle, const Grey& grey,
                double tolerance) {
    Angles covered{};
    Angles brightOutside{};
    for (const Edge& edge : edges) {
        const double x = edge.x - circle.x;
        const double y = edge.y - circle.y;
        if (IsOn(edge, circle, tolerance)) {
            covered.at(SideOf(x, y, angles)) = true;
        } else if (edge.first && Length(x, y) > Outer(circle, tolerance)) {
            brightOutside.at(SideOf(x, y, angles)) = true;
        }
    }
    // A rim that is nearly all outside the picture counts as missing.
    const int visible = std::max(VisibleAngles(circle, grey), static_cast<int>(angles) / 3);
    return static_cast<double>(std::ranges::count(covered, true) -
                               std::ranges::count(brightOutside, true)) /
           visible;
}

// The same in short: how many edges are on the rim, less those outside.
int Support(const std::vector<Edge>& edges, const ImageCircle& circle, double tolerance) {
    int support = 0;
    for (const Edge& edge : edges) {
        if (IsOn(edge, circle, tolerance)) {
            ++support;
        } else if (Length(edge.x - circle.x, edge.y - circle.y) > Outer(circle, tolerance)) {
            --support;
        }
    }
    return support;
}

// The circle through three edges that most of the rim agrees with.
RoughCircle RoughCircleBy(const Grey& grey, double leastStep) {
    constexpr int draws = 2000;
    constexpr std::size_t counted = 300;
    const std::vector<Edge> edges = CollectEdges(grey, leastStep);
    std::vector<Edge> firsts;
    std::ranges::copy_if(edges, std::back_inserter(firsts), &Edge::first);
    RoughCircle rough{{}, -1.0, leastStep};
    if (firsts.size() < 30) {
        return rough;
    }
    const double tolerance = std::max(1.0, 0.004 * grey.Longer());
    std::mt19937 random(1);  // the same draws each time
    std::vector<Edge> few;
    const auto draw = [&]() -> const Edge& { return firsts[random() % firsts.size()]; };
    std::generate_n(std::back_inserter(few), counted, draw);
    std::vector<std::pair<int, ImageCircle>> best;
    for (int i = 0; i < draws; ++i) {
        const Edge& a = draw();
        const Edge& b = draw();
        if (const auto circle = Through(a, b, draw()); circle && MayBe(*circle, grey)) {
            best.emplace_back(Support(few, *circle, tolerance), *circle);
        }
    }
    const std::size_t kept = std::min<std::size_t>(best.size(), 60);
    std::ranges::partial_sort(best, best.begin() + static_cast<std::ptrdiff_t>(kept),
                              std::greater<>(), &std::pair<int, ImageCircle>::first);
    best.resize(kept);
    for (const auto& [count, circle] : best) {
        if (const double share = Coverage(edges, circle, grey, tolerance); share > rough.share) {
            rough.circle = circle;
            rough.share = share;
        }
    }
    return rough;
}

}  // namespace

bool MayBe(const ImageCircle& circle, const Grey& grey) {
    constexpr double smallest = 0.2;      // radius in longer sides
    constexpr double largest = 0.75;      // likewise; beyond half the diagonal nothing dark is left
    constexpr double farthestOff = 0.25;  // of the centre, in sides of the picture
    return circle.radius >= smallest * grey.Longer() && circle.radius <= largest * grey.Longer() &&
           std::fabs(circle.x - grey.Width() / 2.0) <= farthestOff * grey.Width() &&
           std::fabs(circle.y - grey.Height() / 2.0) <= farthestOff * grey.Height();
}

RoughCircle FindRoughCircle(const Grey& grey) {
    constexpr double clearly = 0.6;
    RoughCircle best{{}, -1.0, 0.0};
    for (const double leastStep : {30.0, 10.0, 4.0}) {
        const RoughCircle rough = RoughCircleBy(grey, leastStep);
        if (rough.share > best.share) {
            best = rough;
        }
        if (best.share >= clearly) {
            break;
        }
    }
    return best;
}

}  // namespace varnel
