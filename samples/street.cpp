// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/street.h"

#include <array>
#include <cstdint>

#include "samples/room.h"

namespace varnel::sample {

namespace {

constexpr double groundHeight = -3.2;
constexpr Colour sunLight{1.45, 1.30, 1.05};
constexpr Colour skyLight{0.56, 0.60, 0.66};
constexpr Colour haze = Paint(206, 219, 233);

struct House {
    Box box;
    Colour wall;
};

constexpr House Left(double near, double far, double height, Colour wall) {
    return {{{-17.0, groundHeight, near}, {-7.0, height, far}}, wall};
}
constexpr House Right(double near, double far, double height, Colour wall) {
    return {{{7.0, groundHeight, near}, {17.0, height, far}}, wall};
}

constexpr std::array houses{
    Left(21, 31, 6.6, Paint(196, 120, 92)),
    Left(31, 42, 8.6, Paint(214, 190, 146)),
    Left(42, 55, 7.0, Paint(170, 150, 140)),
    Left(55, 90, 9.4, Paint(200, 140, 110)),
    Right(21, 30, 8.0, Paint(222, 204, 168)),
    Right(30, 43, 6.4, Paint(186, 104, 84)),
    Right(43, 58, 9.0, Paint(204, 196, 186)),
    Right(58, 95, 7.4, Paint(212, 160, 120)),
    House{{{-28.0, groundHeight, 21.0}, {-17.0, 8.4, 31.0}}, Paint(206, 200, 190)},
    House{{{-60.0, groundHeight, 21.0}, {-28.0, 6.8, 31.0}}, Paint(190, 150, 120)},
    House{{{17.0, groundHeight, 21.0}, {29.0, 6.2, 31.0}}, Paint(176, 140, 124)},
    House{{{29.0, groundHeight, 21.0}, {60.0, 8.8, 31.0}}, Paint(210, 180, 150)},
};
constexpr Box allHouses{{-60.0, groundHeight, 21.0}, {60.0, 9.4, 95.0}};

constexpr std::array trees{
    Ball{{-5.6, 0.7, 23.0}, 1.5},  Ball{{5.6, 0.5, 25.5}, 1.6},  Ball{{-5.6, 0.8, 33.0}, 1.7},
    Ball{{5.6, 0.7, 36.0}, 1.5},   Ball{{-5.6, 0.6, 46.0}, 1.6}, Ball{{5.6, 0.9, 49.0}, 1.7},
    Ball{{-11.5, 0.2, 18.6}, 1.3}, Ball{{12.0, 0.3, 18.4}, 1.4},
};

constexpr Box tram{{0.7, groundHeight + 0.35, 33.0}, {3.1, groundHeight + 3.3, 50.0}};

struct Meeting {
    double distance = 1e9;
    Ray normal;
    Colour paint;
};

Ray OutwardNormal(const Beam& beam, int axis) {
    const double x = beam.direction.x > 0.0 ? -1.0 : 1.0;
    const double z = beam.direction.z > 0.0 ? -1.0 : 1.0;
    return axis == 0 ? Ray{x, 0.0, 0.0} : axis == 1 ? Ray{0.0, 1.0, 0.0} : Ray{0.0, 0.0, z};
}

// Panes in a white frame; how dark the room behind is differs from window to window.
Colour WindowPaint(double across, double up, double darkness) {
    const bool frame = Between(across, 0.47, 0.53) || Between(up, 0.66, 0.71) || across < 0.07 ||
                       across > 0.93 || up < 0.05 || up > 0.95;
    return frame ? Paint(240, 238, 230)
                 : Mix(Paint(46, 60, 76), Paint(150, 176, 196), 0.8 * darkness * up);
}

// A shop: awning, sign with letters, show window.
Colour ShopPaint(double along, double up, std::int64_t bay) {
    const bool red = Hash(bay, 77) < 0.5;
    const Colour cloth = red ? Paint(196, 52, 44) : Paint(38, 104, 112);
    if (up > 2.75) {
        const bool ink = IsInk(along * 5.0, (3.2 - up) / 0.45) && up > 2.85;
        return ink ? Paint(250, 240, 210) : cloth * 0.55;
    }
    if (up > 2.15) {
        return Fraction(along * 1.6) < 0.5 ? cloth : Paint(246, 240, 228);
    }
    const double across = Fraction(along / 2.4);
    if (up < 0.35 || Between(across, 0.0, 0.05)) {
        return Paint(74, 66, 62);
    }
    // Goods on three shelves, with the light of the shop above them.
    const std::int64_t good = static_cast<std::int64_t>(std::floor(along / 0.3));
    const std::int64_t shelf = static_cast<std::int64_t>(up / 0.55);
    const double height = Fraction(up / 0.55);
    if (up < 1.65 && Fraction(along / 0.3) > 0.12 && height < 0.25 + 0.5 * Hash(good, shelf)) {
        return Mix(Paint(180, 70, 50), Paint(70, 110, 130), Hash(good + 7, shelf)) *
               (0.5 + 0.5 * Hash(good, shelf + 9));
    }
    return Mix(Paint(60, 52, 48), Paint(250, 214, 150), Ramp(up, 0.3, 2.3));
}

// The front of a house. along is metres to the right, up metres above the pavement.
Colour FrontPaint(const House& house, double along, double up, double top) {
    const std::int64_t bay = static_cast<std::int64_t>(std::floor(along / 2.2));
    if (up < 3.2) {
        return ShopPaint(along, up, bay / 4);
    }
    if (up > top - 0.35) {
        return Paint(232, 226, 214);  // cornice
    }
    const double storey = (up - 3.2) / 2.9;
    const double across = (Fraction(along / 2.2) - 0.27) / 0.46;
    const double height = (Fraction(storey) - 0.24) / 0.58;
    if (Between(across, 0.0, 1.0) && Between(height, 0.0, 1.0) && top - up > 0.6) {
        return WindowPaint(across, height, Hash(bay, static_cast<std::int64_t>(storey)));
    }
    if (Between(across, -0.12, 1.12) && Between(height, -0.09, 0.0)) {
        return Paint(236, 230, 220);  // sill
    }
    const std::int64_t course = static_cast<std::int64_t>(up / 0.16);
    const double shift = course % 2 == 0 ? 0.0 : 0.5;
    const std::int64_t brick = static_cast<std::int64_t>(std::floor(along / 0.46 + shift));
    return house.wall * (0.86 + 0.22 * Hash(brick, course));
}

void MeetHouses(const Beam& beam, Meeting& nearest) {
    if (const Span all = allHouses.Cut(beam); all.enter > all.leave) {
        return;
    }
    for (const House& house : houses) {
        const Span span = house.box.Cut(beam);
        if (span.enter > span.leave || span.enter <= 0.0 || span.enter >= nearest.distance) {
            continue;
        }
        const Ray point = beam.At(span.enter);
        const double along = span.axis == 0 ? point.z : point.x;
        nearest = {
            span.enter, OutwardNormal(beam, span.axis),
            FrontPaint(house, along, point.y - groundHeight, house.box.high.y - groundHeight)};
    }
}

Colour TramPaint(const Ray& point, int axis) {
    const double up = point.y - tram.low.y;
    const double along = axis == 0 ? point.z : point.x - tram.low.x;
    if (axis == 1 || up > 2.65) {
        return Paint(232, 228, 216);
    }
    if (Between(up, 1.15, 2.2)) {
        const bool post = axis == 0 ? Fraction(along / 1.7) < 0.12 : along < 0.2 || along > 2.2;
        return post ? Paint(240, 232, 214) : Paint(58, 72, 88);
    }
    if (axis == 2 && Between(up, 2.28, 2.6) && Between(along, 0.6, 1.8)) {
        return IsInk((along - 0.6) * 5.0, (2.6 - up) / 0.5) ? Paint(255, 200, 60)
                                                            : Paint(30, 30, 34);
    }
    const bool lamp = axis == 2 && Between(up, 0.45, 0.65) &&
                      (Between(along, 0.25, 0.5) || Between(along, 1.9, 2.15));
    return lamp ? Paint(255, 252, 236) : up < 0.2 ? Paint(60, 58, 60) : Paint(206, 60, 46);
}

void MeetTram(const Beam& beam, Meeting& nearest) {
    const Span span = tram.Cut(beam);
    if (span.enter <= span.leave && span.enter > 0.0 && span.enter < nearest.distance) {
        nearest = {span.enter, OutwardNormal(beam, span.axis),
                   TramPaint(beam.At(span.enter), span.axis)};
    }
}

void MeetTrees(const Beam& beam, Meeting& nearest) {
    for (const Ball& tree : trees) {
        const double distance = tree.Distance(beam);
        if (distance > 0.0 && distance < nearest.distance) {
            const Ray point = beam.At(distance);
            const Ray normal = Unit(Minus(point, tree.centre));
            const double leaf = Noise(normal.x * 9.0 + tree.centre.z, normal.y * 9.0);
            // A ragged rim: leaves stand out where the beam only grazes the ball.
            const double rim = Noise(normal.x * 16.0, normal.y * 16.0 + tree.centre.z);
            if (-Dot(normal, beam.direction) > 0.45 * rim) {
                nearest = {distance, normal,
                           Mix(Paint(44, 80, 34), Paint(128, 160, 66), leaf * leaf)};
            }
        }
        const Box trunk{{tree.centre.x - 0.12, groundHeight, tree.centre.z - 0.12},
                        {tree.centre.x + 0.12, tree.centre.y, tree.centre.z + 0.12}};
        const Span span = trunk.Cut(beam);
        if (span.enter <= span.leave && span.enter > 0.0 && span.enter < nearest.distance) {
            nearest = {span.enter, OutwardNormal(beam, span.axis), Paint(92, 74, 60)};
        }
    }
}

Colour RoadPaint(double x, double z) {
    const double grit = 0.9 + 0.2 * Noise(x * 3.0, z * 3.0);
    const bool avenue = z > 20.0;
    const bool road = avenue ? std::fabs(x) < 4.2 : Between(z, 7.0, 16.6);
    if (!road && !(Between(z, 16.6, 20.0) && std::fabs(x) < 4.2)) {
        const bool joint = Fraction(x / 0.8) < 0.05 || Fraction(z / 0.8) < 0.05;
        return Paint(176, 170, 160) * (joint ? 0.7 : grit);
    }
    const bool zebra = Between(z, 17.2, 19.8) && Fraction(x / 1.0) < 0.5;
    const bool lane = (avenue && std::fabs(x) < 0.1 && Fraction(z / 5.0) < 0.55) ||
                      (Between(z, 11.7, 11.9) && Fraction(x / 4.0) < 0.5);
    const bool rail = avenue && (Between(x, 1.1, 1.2) || Between(x, 2.6, 2.7));
    return zebra || lane ? Paint(236, 234, 226)
                         : (rail ? Paint(70, 74, 80) : Paint(104, 106, 112)) * grit;
}

void MeetGround(const Beam& beam, Meeting& nearest) {
    const double distance = (groundHeight - beam.from.y) * beam.inverse.y;
    if (beam.direction.y < 0.0 && distance < nearest.distance) {
        const Ray point = beam.At(distance);
        nearest = {distance, {0.0, 1.0, 0.0}, RoadPaint(point.x, point.z)};
    }
}

Meeting NearestOutside(const Beam& beam) {
    Meeting nearest;
    MeetHouses(beam, nearest);
    MeetTram(beam, nearest);
    MeetTrees(beam, nearest);
    MeetGround(beam, nearest);
    return nearest;
}

bool InShade(const Ray& point) {
    const Beam toSun({point.x, point.y + 1e-3, point.z}, sunward);
    const auto blocks = [&](const Box& box) {
        const Span span = box.Cut(toSun);
        return span.enter <= span.leave && span.enter > 1e-3;
    };
    for (const House& house : houses) {
        if (blocks(house.box)) {
            return true;
        }
    }
    for (const Ball& tree : trees) {
        if (tree.Distance(toSun) > 1e-3) {
            return true;
        }
    }
    return blocks(tram);
}

Colour Sky(const Ray& direction) {
    const double height = direction.y / std::sqrt(Dot(direction, direction));
    const double hill = 0.018 + 0.03 * Noise(direction.x / direction.z * 9.0 + 40.0, 0.5) +
                        0.006 * Noise(direction.x / direction.z * 60.0, 3.5);
    if (height < hill) {
        return Mix(Paint(122, 150, 166), Paint(156, 176, 170), Ramp(height, 0.0, hill));
    }
    const Colour blue = Mix(haze, Paint(88, 146, 214), Ramp(height, 0.0, 0.42));
    const double across = direction.x / (height + 0.08);
    const double away = direction.z / (height + 0.08);
    const double cloud = 0.55 * Noise(across * 0.9, away * 0.5) +
                         0.30 * Noise(across * 2.1, away * 1.3) +
                         0.15 * Noise(across * 4.9, away * 3.1);
    return Mix(blue, Paint(250, 250, 252), 0.9 * Ramp(cloud, 0.46, 0.74));
}

}  // namespace

Colour StreetLight(const Beam& beam) {
    const Meeting meeting = NearestOutside(beam);
    if (meeting.distance >= 1e9) {
        return Sky(beam.direction) * 1.25;
    }
    const double facing = Dot(meeting.normal, sunward);
    Colour light = skyLight * (0.75 + 0.25 * meeting.normal.y);
    if (facing > 0.0 && !InShade(beam.At(meeting.distance))) {
        light = light + sunLight * facing;
    }
    // Everything fades into the haze with the distance.
    return Mix(meeting.paint * light * 1.25, haze, 1.0 - 1.0 / (1.0 + meeting.distance / 420.0));
}

}  // namespace varnel::sample
