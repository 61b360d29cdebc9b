// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/scene.h"

#include <array>

#include "samples/room.h"
#include "samples/room_paint.h"
#include "samples/street.h"
#include "samples/texture.h"

namespace varnel {

namespace {

using namespace sample;

constexpr Colour bounced{0.43, 0.41, 0.38};  // what comes from everywhere in the room
constexpr Colour daylight{4.2, 4.5, 4.9};
constexpr Colour sunlight{2.3, 2.05, 1.65};
constexpr Colour lamplight{0.30, 0.24, 0.16};

// The share of a small lamp's light that a surface turned by the normal gets.
double FromPoint(const Ray& lamp, const Hit& hit) {
    const Ray way = Minus(lamp, hit.point);
    const double square = Dot(way, way);
    const double facing = Dot(way, hit.normal) / std::sqrt(square);
    return std::max(facing, 0.0) / (square + 0.25);
}

// The window as one lamp in its middle that shines mostly straight into the room.
double FromWindow(const Hit& hit) {
    constexpr Ray middle{0.0, 1.5, 2.75};
    const Ray way = Minus(middle, hit.point);
    const double square = Dot(way, way);
    const double length = std::sqrt(square);
    const double facing = Dot(way, hit.normal) / length;
    return std::max(0.25 + 0.75 * facing, 0.0) * std::max(way.z / length, 0.0) / (square + 2.5);
}

// Corners are darker: the share of light that is left at this distance from the next wall.
double Corner(double distance) {
    const double far = std::fabs(distance) / 0.16;
    return 1.0 - 0.34 / (1.0 + far * far);
}

double Corners(const Hit& hit) {
    const Ray& point = hit.point;
    double share = 1.0;
    if (std::fabs(hit.normal.x) < 0.5) {
        share *= Corner(point.x - roomBox.low.x) * Corner(roomBox.high.x - point.x);
    }
    if (std::fabs(hit.normal.y) < 0.5) {
        share *= Corner(point.y - roomBox.low.y) * Corner(roomBox.high.y - point.y);
    }
    if (std::fabs(hit.normal.z) < 0.5) {
        share *= Corner(roomBox.high.z - point.z);
    }
    return share;
}

// The soft shade under table and stool.
double UnderFurniture(const Hit& hit) {
    if (hit.surface != Surface::Floor) {
        return 1.0;
    }
    const auto shade = [&](double x, double z, double wide, double deep) {
        const double aside = Ramp(std::fabs(hit.point.x - x), wide + 0.15, wide - 0.25);
        return aside * Ramp(std::fabs(hit.point.z - z), deep + 0.15, deep - 0.25);
    };
    return 1.0 - 0.5 * shade(-1.4, 1.35, 0.55, 0.40) - 0.35 * shade(-0.47, 1.33, 0.18, 0.18) -
           0.4 * shade(1.68, 2.18, 0.2, 0.2);
}

Colour LightOn(const Hit& hit) {
    Colour light = bounced * (1.0 + 0.12 * hit.normal.y) + daylight * (0.22 * FromWindow(hit));
    light =
        light + lamplight * (FromPoint({-1.4, 2.0, 1.3}, hit) + FromPoint({0.9, 2.2, 1.3}, hit));
    light = light * (Corners(hit) * UnderFurniture(hit));
    const double facing = Dot(hit.normal, sunward);
    return facing > 0.0 && SunReaches(hit.point) ? light + sunlight * facing : light;
}

}  // namespace

Colour LookAt(const Ray& direction) {
    const Beam beam(eye, Unit(direction));
    const Hit hit = NearestInRoom(beam);
    if (hit.surface == Surface::Glass) {
        return Levels(StreetLight(beam));
    }
    const double glow = GlowOf(hit);
    return Levels(glow > 0.0
                      ? Paint(255, 236, 196) * (glow + 0.5 * -Dot(hit.normal, beam.direction))
                      : PaintOf(hit) * LightOn(hit));
}

Colour LookAtGradients(const Ray& direction) {
    const Ray d = Unit(direction);
    return {128.0 + 60.0 * std::sin(2.0 * d.x + 0.4) + 40.0 * std::sin(3.0 * d.y + 1.0),
            128.0 + 55.0 * std::sin(2.5 * d.y - 0.7) + 45.0 * std::sin(1.5 * d.z + 2.0 * d.x),
            128.0 + 60.0 * std::sin(3.0 * d.x - 1.2 * d.y) + 40.0 * std::sin(2.0 * d.z + 0.9)};
}

Colour EdgeScene::operator()(const Ray& direction) const {
    const double level = Dot(direction, normal) > 0.0 ? bright : dark;
    return {level, level, level};
}

}  // namespace varnel
