// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/straighten/edge_finder.h"

#include <gtest/gtest.h>

#include "remap/analysis/straighten/edge_tracer.h"
#include "remap/analysis/straighten/great_circle.h"
#include "samples/fisheye_shot.h"

namespace varnel {
namespace {

// A camera in the sample room, which puts pixel (x, y) at exactly (x, y).
FisheyeShot RoomShot() {
    FisheyeShot shot;
    shot.size = {1800, 1800};
    shot.pixelsPerMillimetre = 75.0;
    shot.centreX = 905.0;
    shot.centreY = 893.0;
    shot.circleRadius = 11.4;
    shot.curve = {16.0F, 0.5F};
    shot.samples = 3;
    shot.noise = 2.0;
    return shot;
}

LensView LensOf(const FisheyeShot& shot) {
    return ViewOfFormula(shot.kind, shot.curve, shot.pixelsPerMillimetre,
                         {shot.centreX + 0.5, shot.centreY + 0.5});
}

TEST(EdgeFinder, FindsStraightEdgesOfARoom) {
    const FisheyeShot shot = RoomShot();
    const LensView lens = LensOf(shot);
    const BitmapHandle photo = TakeFisheye(LookAt, shot);
    const std::vector<EdgeTrace> edges = FindEdges(*photo, lens, {.reach = 840.0});
    ASSERT_GE(edges.size(), 30U);
    EXPECT_GT(Span(edges[0]), 500.0);
    int straight = 0;
    for (const EdgeTrace& edge : edges) {
        straight += FitGreatCircle(lens, edge.points).rms < 0.3 ? 1 : 0;
    }
    EXPECT_GE(straight, 0.75 * static_cast<double>(edges.size()));
}

TEST(EdgeTracer, FollowsAnEdgeFromClicksThatAreOff) {
    const FisheyeShot shot = RoomShot();
    const LensView lens = LensOf(shot);
    const Ray normal = Unit({0.2, 1.0, -0.5});
    const BitmapHandle photo = TakeFisheye(EdgeScene{normal}, shot);
    const Ray along = Unit(Cross(normal, {0.0, 0.0, 1.0}));
    const Ray ahead = Cross(along, normal);
    const auto at = [&](double turn) {
        return lens.PlaceOf({std::cos(turn) * ahead.x + std::sin(turn) * along.x,
                             std::cos(turn) * ahead.y + std::sin(turn) * along.y,
                             std::cos(turn) * ahead.z + std::sin(turn) * along.z});
    };
    EdgePoint from = at(-0.9);
    EdgePoint to = at(0.8);
    from.y += 4.0;
    to.y -= 4.0;
    // A guess with which the edge bows by many pixels.
    const LensView guess = ViewOfFormula(LensKind::Sin, {14.5F, 0.62F}, 75.0, {900.0, 900.0});
    const EdgeTrace edge = TraceEdge(*photo, from, to, guess);
    ASSERT_GT(edge.points.size(), 200U);
    for (const EdgePoint& point : edge.points) {
        const double off = Dot(lens.RayAt(point), normal) * 75.0 * 8.0;
        EXPECT_LT(std::fabs(off), 0.34);
    }
    EXPECT_LT(TraceEdge(*photo, {900.0, 500.0}, {1000.0, 490.0}, lens).points.size(), 10U);
}

}  // namespace
}  // namespace varnel
