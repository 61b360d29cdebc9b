// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/room.h"

#include <array>
#include <span>

#include "samples/texture.h"

namespace varnel::sample {

namespace {

struct Piece {
    Box box;
    Surface surface;
};

// The table with what lies on it, and the stool.
constexpr std::array furniture{
    Piece{{{-1.95, 0.71, 0.95}, {-0.85, 0.75, 1.75}}, Surface::Timber},
    Piece{{{-1.93, 0.0, 0.97}, {-1.87, 0.71, 1.03}}, Surface::Timber},
    Piece{{{-0.93, 0.0, 0.97}, {-0.87, 0.71, 1.03}}, Surface::Timber},
    Piece{{{-1.93, 0.0, 1.67}, {-1.87, 0.71, 1.73}}, Surface::Timber},
    Piece{{{-0.93, 0.0, 1.67}, {-0.87, 0.71, 1.73}}, Surface::Timber},
    Piece{{{-1.80, 0.75, 1.10}, {-1.52, 0.79, 1.30}}, Surface::Enamel},
    Piece{{{-1.77, 0.79, 1.12}, {-1.54, 0.82, 1.28}}, Surface::Clay},
    Piece{{{-0.65, 0.42, 1.15}, {-0.29, 0.46, 1.51}}, Surface::Timber},
    Piece{{{-0.63, 0.0, 1.17}, {-0.59, 0.42, 1.21}}, Surface::Timber},
    Piece{{{-0.35, 0.0, 1.17}, {-0.31, 0.42, 1.21}}, Surface::Timber},
    Piece{{{-0.63, 0.0, 1.45}, {-0.59, 0.42, 1.49}}, Surface::Timber},
    Piece{{{-0.35, 0.0, 1.45}, {-0.31, 0.42, 1.49}}, Surface::Timber},
};
constexpr Box furnitureBox{{-1.95, 0.0, 0.95}, {-0.29, 0.82, 1.75}};

// Bookcase, radiator, flower pot, the beams under the ceiling and the cords of the lamps.
constexpr std::array fittings{
    Piece{{{2.08, 0.0, -0.45}, {2.4, 2.12, 1.95}}, Surface::Books},
    Piece{{{-0.9, 0.1, 2.5}, {0.9, 0.42, 2.6}}, Surface::Radiator},
    Piece{{{1.52, 0.0, 2.02}, {1.84, 0.34, 2.34}}, Surface::Clay},
    Piece{{{-2.4, 2.62, -0.98}, {2.4, 2.8, -0.82}}, Surface::Timber},
    Piece{{{-2.4, 2.62, 0.52}, {2.4, 2.8, 0.68}}, Surface::Timber},
    Piece{{{-2.4, 2.62, 2.02}, {2.4, 2.8, 2.18}}, Surface::Timber},
    Piece{{{-1.405, 2.1, 1.295}, {-1.395, 2.8, 1.305}}, Surface::Grille},
    Piece{{{0.895, 2.3, 1.295}, {0.905, 2.8, 1.305}}, Surface::Grille},
};

struct Round {
    Ball ball;
    Surface surface;
};

constexpr std::array rounds{
    Round{{{-1.4, 2.0, 1.3}, 0.13}, Surface::Lamp},
    Round{{{0.9, 2.2, 1.3}, 0.13}, Surface::Lamp},
    Round{{{-1.15, 0.87, 1.45}, 0.12}, Surface::Globe},
};

// The plant: balls of leaves, of which the noise leaves about half.
constexpr std::array leaves{
    Ball{{1.68, 0.62, 2.18}, 0.26},
    Ball{{1.60, 0.92, 2.14}, 0.24},
    Ball{{1.76, 1.16, 2.20}, 0.20},
    Ball{{1.64, 1.34, 2.16}, 0.14},
};
constexpr Box plantBox{{1.36, 0.36, 1.90}, {1.96, 1.48, 2.44}};

Ray AxisNormal(int axis, double sign) {
    return {axis == 0 ? sign : 0.0, axis == 1 ? sign : 0.0, axis == 2 ? sign : 0.0};
}

double Along(const Ray& ray, int axis) {
    return axis == 0 ? ray.x : axis == 1 ? ray.y : ray.z;
}

// A normal against the beam, on the face across the axis.
Ray FaceNormal(const Beam& beam, int axis) {
    return AxisNormal(axis, Along(beam.direction, axis) > 0.0 ? -1.0 : 1.0);
}

// Where a beam that starts in the box leaves it, and through which face.
struct Exit {
    double distance;
    int axis;
};

Exit LeaveBox(const Box& box, const Beam& beam) {
    const auto far = [&](double low, double high, double from, double inverse) {
        return ((inverse > 0.0 ? high : low) - from) * inverse;
    };
    const double x = far(box.low.x, box.high.x, beam.from.x, beam.inverse.x);
    const double y = far(box.low.y, box.high.y, beam.from.y, beam.inverse.y);
    const double z = far(box.low.z, box.high.z, beam.from.z, beam.inverse.z);
    if (x < y && x < z) {
        return {x, 0};
    }
    return y < z ? Exit{y, 1} : Exit{z, 2};
}

bool InOpening(const Ray& point) {
    return Between(point.x, openingBox.low.x, openingBox.high.x) &&
           Between(point.y, openingBox.low.y, openingBox.high.y);
}

// The sashes: a border, two posts and a bar across, all in the plane of the glass.
bool IsWindowFrame(const Ray& point) {
    constexpr double border = 0.07;
    constexpr double post = 0.62;
    const double aside = std::fabs(point.x);
    return aside > openingBox.high.x - border || point.y < openingBox.low.y + border ||
           point.y > openingBox.high.y - border || Between(aside, post - 0.035, post + 0.035) ||
           Between(point.y, 1.86, 1.92);
}

Hit ThroughOpening(const Beam& beam) {
    const Exit exit = LeaveBox(openingBox, beam);
    const Ray point = beam.At(exit.distance);
    const Surface surface = exit.axis != 2         ? Surface::Reveal
                            : IsWindowFrame(point) ? Surface::WindowFrame
                                                   : Surface::Glass;
    return {exit.distance, point, FaceNormal(beam, exit.axis), surface};
}

Hit Shell(const Beam& beam) {
    const Exit exit = LeaveBox(roomBox, beam);
    const Ray point = beam.At(exit.distance);
    const bool positive = Along(beam.direction, exit.axis) > 0.0;
    if (exit.axis == 2 && positive && InOpening(point)) {
        return ThroughOpening(beam);
    }
    constexpr std::array walls{Surface::LeftWall, Surface::RightWall, Surface::Floor,
                               Surface::Ceiling,  Surface::BackWall,  Surface::WindowWall};
    const std::size_t wall = static_cast<std::size_t>(exit.axis * 2 + (positive ? 1 : 0));
    return {exit.distance, point, FaceNormal(beam, exit.axis), walls[wall]};
}

Hit OnBall(const Beam& beam, const Ball& ball, double distance, Surface surface) {
    const Ray point = beam.At(distance);
    return {distance, point, Unit(Minus(point, ball.centre)), surface};
}

void MeetPieces(const Beam& beam, std::span<const Piece> pieces, Hit& nearest) {
    for (const Piece& piece : pieces) {
        const Span span = piece.box.Cut(beam);
        if (span.enter > 0.0 && span.enter <= span.leave && span.enter < nearest.distance) {
            nearest = {span.enter, beam.At(span.enter), FaceNormal(beam, span.axis), piece.surface};
        }
    }
}

void MeetLeaves(const Beam& beam, Hit& nearest) {
    if (const Span span = plantBox.Cut(beam); span.enter > span.leave || span.leave < 0.0) {
        return;
    }
    for (const Ball& ball : leaves) {
        const double distance = ball.Distance(beam);
        if (distance <= 0.0 || distance >= nearest.distance) {
            continue;
        }
        const Hit hit = OnBall(beam, ball, distance, Surface::Leaves);
        const double turn = std::atan2(hit.normal.x, hit.normal.z);
        if (Noise(turn * 6.0 + ball.centre.y * 40.0, hit.normal.y * 7.0 + turn * 3.0) < 0.52) {
            nearest = hit;
        }
    }
}

}  // namespace

Hit NearestInRoom(const Beam& beam) {
    Hit nearest = Shell(beam);
    MeetPieces(beam, fittings, nearest);
    if (const Span span = furnitureBox.Cut(beam); span.enter <= span.leave) {
        MeetPieces(beam, furniture, nearest);
    }
    for (const Round& round : rounds) {
        const double distance = round.ball.Distance(beam);
        if (distance > 0.0 && distance < nearest.distance) {
            nearest = OnBall(beam, round.ball, distance, round.surface);
        }
    }
    MeetLeaves(beam, nearest);
    return nearest;
}

bool SunReaches(const Ray& point) {
    // A hand's breadth of nothing between the surface and its own shadow.
    constexpr double gap = 1e-4;
    const Beam beam(
        {point.x + gap * sunward.x, point.y + gap * sunward.y, point.z + gap * sunward.z}, sunward);
    const Ray inner = beam.At((openingBox.low.z - point.z) / sunward.z);
    const Ray outer = beam.At((openingBox.high.z - point.z) / sunward.z);
    if (!InOpening(inner) || !InOpening(outer) || IsWindowFrame(outer)) {
        return false;
    }
    return NearestInRoom(beam).surface == Surface::Glass;
}

}  // namespace varnel::sample
