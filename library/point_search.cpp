// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/point_search.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varnel {

namespace {

constexpr int netLines = 48;    // across and up
constexpr int startsTried = 4;  // the nearest nodes
constexpr int mostSteps = 40;
constexpr double exact = 1e-3;  // pixels of the photo

double DistanceOf(const SourcePosition& a, const SourcePosition& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// What a small step of the point moves the place on the photo by.
struct Slopes {
    double xx = 0.0, xy = 0.0, yx = 0.0, yy = 0.0;  // of x by x, of x by y ...
    double Determinant() const { return xx * yy - xy * yx; }
};

}  // namespace

PointSearch::PointSearch(Mapping mapping, PixelSize size)
    : mapping_(std::move(mapping)), size_(size) {
    for (int j = 0; j <= netLines; ++j) {
        for (int i = 0; i <= netLines; ++i) {
            const SourcePosition point{(size.width - 1) * static_cast<double>(i) / netLines,
                                       (size.height - 1) * static_cast<double>(j) / netLines};
            if (const auto photo = mapping_(point)) {
                nodes_.push_back({point, *photo});
            }
        }
    }
}

std::optional<SourcePosition> PointSearch::Find(const SourcePosition& onPhoto) const {
    if (!std::isfinite(onPhoto.x) || !std::isfinite(onPhoto.y)) {
        return std::nullopt;
    }
    std::array<const Node*, startsTried> nearest{};
    const auto distance = [&](const Node* node) {
        return node == nullptr ? std::numeric_limits<double>::infinity()
                               : DistanceOf(node->photo, onPhoto);
    };
    for (const Node& node : nodes_) {
        if (distance(&node) < distance(nearest.back())) {
            nearest.back() = &node;
            std::ranges::sort(nearest, {}, distance);
        }
    }
    for (const Node* const start : nearest) {
        if (start == nullptr) {
            break;
        }
        if (const auto found = Follow(start->point, onPhoto)) {
            return found;
        }
    }
    return std::nullopt;
}

// Newton's steps, each halved until it comes nearer.
std::optional<SourcePosition> PointSearch::Follow(SourcePosition point,
                                                  const SourcePosition& target) const {
    constexpr double probe = 0.25;  // pixels
    std::optional<SourcePosition> here = mapping_(point);
    for (int step = 0; here && step < mostSteps; ++step) {
        const double distance = DistanceOf(*here, target);
        if (distance < exact) {
            const bool onResult = point.x >= -0.5 && point.x <= size_.width - 0.5 &&
                                  point.y >= -0.5 && point.y <= size_.height - 0.5;
            return onResult ? std::optional(point) : std::nullopt;
        }
        const auto right = mapping_({point.x + probe, point.y});
        const auto above = mapping_({point.x, point.y + probe});
        if (!right || !above) {
            return std::nullopt;
        }
        const Slopes slopes{(right->x - here->x) / probe, (above->x - here->x) / probe,
                            (right->y - here->y) / probe, (above->y - here->y) / probe};
        if (!(std::fabs(slopes.Determinant()) > 1e-12)) {
            return std::nullopt;
        }
        const double dx = target.x - here->x;
        const double dy = target.y - here->y;
        SourcePosition move{(dx * slopes.yy - dy * slopes.xy) / slopes.Determinant(),
                            (dy * slopes.xx - dx * slopes.yx) / slopes.Determinant()};
        std::optional<SourcePosition> there;
        for (int halving = 0; halving < 12; ++halving) {
            there = mapping_({point.x + move.x, point.y + move.y});
            if (there && DistanceOf(*there, target) < distance) {
                break;
            }
            there.reset();
            move = {move.x / 2.0, move.y / 2.0};
        }
        point = {point.x + move.x, point.y + move.y};
        here = there;
    }
    return std::nullopt;
}

}  // namespace varnel
