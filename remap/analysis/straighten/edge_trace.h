// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Edges of things that are straight, as points on a photo. Positions are in pixels from the left
// and from the bottom edge; the middle of the first pixel is at 0.5.
#pragma once

#include <cmath>
#include <vector>

namespace varnel {

struct EdgePoint {
    double x = 0.0;
    double y = 0.0;
};

// What the user knows of an edge. In one photo all edges of one tag are parallel in space, and
// edges of different tags are at right angles.
enum class EdgeTag { None, Upright, Level, Away };

struct EdgeTrace {
    std::vector<EdgePoint> points;  // in their order along the edge
    EdgeTag tag = EdgeTag::None;
    int photo = 0;  // of the photos of one lens, the first is 0
};

inline double Distance(const EdgePoint& a, const EdgePoint& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// From its first to its last point, pixels. Throws nothing.
inline double Span(const EdgeTrace& edge) {
    return edge.points.empty() ? 0.0 : Distance(edge.points.front(), edge.points.back());
}

}  // namespace varnel
