// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/room_paint.h"

#include <array>
#include <cstdint>

namespace varnel::sample {

namespace {

constexpr Colour plaster = Paint(236, 226, 206);
constexpr Colour white = Paint(244, 243, 238);
constexpr Colour timber = Paint(168, 118, 74);

std::int64_t Cell(double x) {
    return static_cast<std::int64_t>(std::floor(x));
}

// Wood with its grain along u.
Colour Grain(const Colour& wood, double u, double v) {
    return wood * (0.82 + 0.22 * Noise(u * 3.0, v * 70.0) + 0.12 * Noise(u * 1.3, v * 9.0));
}

// Boards of one width that run into the room, each with its own tone and its own butt joints.
Colour BoardPaint(double x, double z) {
    constexpr double width = 0.15;
    constexpr double length = 1.7;
    const std::int64_t board = Cell(x / width);
    const double along = z / length + Hash(board, 1) * 3.0;
    const double side = Fraction(x / width);
    const double end = Fraction(along) * length;
    if (side < 0.035 || end < 0.006) {
        return Paint(58, 40, 28);
    }
    const double tone = 0.78 + 0.42 * Hash(board, Cell(along));
    return Grain(Paint(186, 136, 88) * tone, z + 7.0 * Hash(board, 2), x);
}

// The rug: a checkerboard inside a border with a fine line.
Colour RugPaint(double x, double z) {
    const double inset = std::min(std::min(x, 2.0 - x), std::min(z, 1.6 - z));
    const double weave = 0.92 + 0.16 * Noise(x * 160.0, z * 160.0);
    if (inset < 0.1) {
        return (Between(inset, 0.04, 0.055) ? Paint(240, 214, 150) : Paint(122, 34, 40)) * weave;
    }
    const bool dark = (Cell((x - 0.1) / 0.2) + Cell((z - 0.1) / 0.2)) % 2 == 0;
    return (dark ? Paint(38, 58, 92) : Paint(238, 228, 206)) * weave;
}

Colour FloorPaint(const Ray& point) {
    const double x = point.x + 0.35;
    const double z = point.z - 0.05;
    return Between(x, 0.0, 2.0) && Between(z, 0.0, 1.6) ? RugPaint(x, z)
                                                        : BoardPaint(point.x, point.z);
}

Colour TilePaint(double along, double up) {
    constexpr double side = 0.12;
    const bool joint = Fraction(along / side) < 0.05 || Fraction(up / side) < 0.05;
    if (joint) {
        return Paint(176, 172, 164);
    }
    const std::int64_t column = Cell(along / side);
    const std::int64_t row = Cell(up / side);
    const double tone = 0.92 + 0.1 * Hash(column, row);
    return (row == 8                      ? Paint(40, 104, 128)
            : row == 7 && column % 2 == 0 ? Paint(214, 138, 52)
                                          : white) *
           tone;
}

// across and up from 0 to 1 over the leaf: two panels over two, a handle.
Colour DoorPaint(double across, double up) {
    const double column = std::fabs(across - 0.5);
    const bool panel =
        Between(column, 0.06, 0.40) && (Between(up, 0.08, 0.42) || Between(up, 0.50, 0.94));
    const bool groove = Between(column, 0.05, 0.41) &&
                        (Between(up, 0.07, 0.43) || Between(up, 0.49, 0.95)) && !panel;
    if (Between(across, 0.04, 0.15) && Between(up, 0.470, 0.484)) {
        return Paint(208, 176, 96);
    }
    return groove ? Paint(44, 82, 76) : panel ? Paint(86, 132, 122) : Paint(74, 118, 110);
}

// A poster: a sun over three hills, and small print below. 0 to 1 each way.
Colour PosterPaint(double across, double up) {
    const double frame = std::min(std::min(across, 1.0 - across) * 0.7, std::min(up, 1.0 - up));
    if (frame < 0.02) {
        return Paint(40, 36, 34);
    }
    if (up < 0.3) {
        const bool heading = up > 0.2 && IsInk(across * 11.0, (0.3 - up) / 0.1);
        const bool print = up < 0.18 && IsInk(across * 34.0 + 100.0, (0.3 - up) / 0.034);
        const bool margin = across < 0.08 || across > 0.92 || up < 0.06;
        return (heading || print) && !margin ? Paint(36, 34, 40) : Paint(246, 236, 214);
    }
    const double sun = std::hypot((across - 0.64) * 0.7, up - 0.74);
    if (up < 0.44 + 0.06 * std::sin(across * 9.0)) {
        return Paint(30, 70, 74);
    }
    if (up < 0.56 + 0.07 * std::sin(across * 7.0 + 2.0)) {
        return Paint(52, 118, 108);
    }
    return sun < 0.14 ? Paint(250, 214, 92)
                      : Mix(Paint(236, 112, 62), Paint(248, 190, 120), 1.6 * (1.0 - up));
}

// A round face of radius 1 with twelve marks, at ten past ten.
Colour ClockPaint(double x, double y) {
    const double radius = std::hypot(x, y);
    const double hour = Fraction(std::atan2(x, y) / 0.5235987755982988 + 0.5) - 0.5;
    if (radius > 0.9) {
        return Paint(34, 34, 38);
    }
    const auto hand = [&](double sine, double cosine, double length, double width) {
        return std::fabs(x * cosine - y * sine) < width &&
               Between(x * sine + y * cosine, 0.0, length);
    };
    const bool mark = Between(radius, 0.7, 0.82) && std::fabs(hour) < 0.04 / radius;
    const bool hands = hand(-0.819, 0.574, 0.45, 0.045) || hand(0.866, 0.5, 0.66, 0.03);
    return mark || hands ? Paint(34, 34, 38) : Paint(250, 248, 240);
}

Colour LeftWallPaint(const Ray& point) {
    const double doorway = (point.z + 1.0) / 0.9;
    if (Between(doorway, -0.09, 1.09) && point.y < 2.13) {
        const bool leaf = Between(doorway, 0.0, 1.0) && point.y < 2.05;
        return leaf ? DoorPaint(doorway, point.y / 2.05) : white;
    }
    const double poster = (point.z - 1.0) / 0.7;
    if (Between(poster, 0.0, 1.0) && Between(point.y, 1.3, 2.3)) {
        return PosterPaint(poster, point.y - 1.3);
    }
    if (std::hypot(point.z - 0.45, point.y - 1.85) < 0.19) {
        return ClockPaint((point.z - 0.45) / 0.19, (point.y - 1.85) / 0.19);
    }
    return point.y < 1.08 ? TilePaint(point.z + 4.0, point.y) : plaster;
}

Colour RightWallPaint(const Ray& point) {
    if (point.y < 0.1) {
        return white;
    }
    const bool plate = Between(point.z, 2.2, 2.29) && Between(point.y, 1.05, 1.14);
    return plate ? Paint(252, 252, 250) : Paint(206, 214, 204);
}

// Curtains with folds at both sides of the window, a skirting board below.
Colour WindowWallPaint(const Ray& point) {
    const double aside = std::fabs(point.x);
    if (Between(aside, 1.72, 2.3) && Between(point.y, 0.12, 2.55)) {
        const double fold = std::sin(aside * 75.0 + 0.8 * std::sin(point.y * 2.0));
        return Paint(196, 84, 60) * (0.8 + 0.25 * fold);
    }
    if (Between(point.y, 2.5, 2.56) && aside < 2.34) {
        return Paint(96, 72, 52);
    }
    return point.y < 0.1 ? white : plaster;
}

// Boards painted white, and a vent with slats.
Colour CeilingPaint(const Ray& point) {
    const double x = point.x - 1.3;
    const double z = point.z - 0.05;
    if (Between(x, -0.25, 0.25) && Between(z, -0.25, 0.25)) {
        const bool rim = std::fabs(x) > 0.22 || std::fabs(z) > 0.22;
        return rim || Fraction(z / 0.04) < 0.5 ? Paint(214, 214, 212) : Paint(46, 46, 48);
    }
    return Fraction(point.x / 0.3) < 0.02 ? Paint(196, 192, 184) : white;
}

// One shelf per 0.35 m; every book has its own width, height and colour.
Colour BookPaint(double along, double up) {
    constexpr double shelf = 0.35;
    constexpr double slot = 0.045;
    constexpr std::array covers{Paint(150, 44, 40),  Paint(38, 74, 110),   Paint(214, 178, 92),
                                Paint(56, 102, 72),  Paint(232, 226, 210), Paint(70, 52, 84),
                                Paint(206, 118, 54), Paint(48, 50, 56)};
    const std::int64_t row = Cell(up / shelf);
    const double height = Fraction(up / shelf) * shelf;
    const double bay = Fraction(along / 0.8) * 0.8;
    if (height < 0.028 || bay < 0.03) {
        return Paint(120, 82, 52);
    }
    const std::int64_t book = Cell(along / slot);
    const double top = 0.2 + 0.1 * Hash(book, row + 50);
    const double spine = Fraction(along / slot);
    if (height > top || Hash(book / 5, row + 90) < 0.08) {
        return Paint(52, 36, 26) * (1.0 - 1.5 * (height - 0.1));
    }
    const Colour cover = covers[static_cast<std::size_t>(Hash(book, row) * 8.0)];
    const bool title = Between(spine, 0.25, 0.75) && Between(height, 0.09, top - 0.06) &&
                       IsInk(height * 90.0, spine * 2.0 + static_cast<double>(book));
    const Colour ink = cover.red + cover.green > 0.7 ? Paint(40, 34, 30) : Paint(240, 220, 160);
    return (title ? ink : cover) * (spine < 0.08 ? 0.35 : 0.8 + 0.8 * spine * (1.0 - spine));
}

Colour BookcasePaint(const Hit& hit) {
    const bool front = hit.normal.x < -0.5;
    return front && hit.point.y < 2.1 ? BookPaint(hit.point.z + 3.0, hit.point.y)
                                      : Grain(Paint(134, 92, 58), hit.point.y, hit.point.z);
}

Colour RadiatorPaint(const Hit& hit) {
    const bool gap = hit.normal.z < -0.5 && Fraction(hit.point.x / 0.05) < 0.3 &&
                     Between(hit.point.y, 0.13, 0.39);
    return gap ? Paint(120, 118, 112) : white;
}

Colour TimberPaint(const Ray& point) {
    return Grain(timber, point.x, point.y + point.z);
}

// Land and sea, with lines of longitude and latitude.
Colour GlobePaint(const Ray& normal) {
    const double longitude = std::atan2(normal.x, -normal.z) * 4.0;
    const double latitude = std::asin(normal.y) * 6.0;
    if (Fraction(longitude) < 0.06 || Fraction(latitude) < 0.06) {
        return Paint(226, 226, 214);
    }
    return Noise(longitude * 0.8 + 9.0, latitude * 0.7) > 0.52 ? Paint(196, 172, 104)
                                                               : Paint(58, 116, 158);
}

}  // namespace

Colour PaintOf(const Hit& hit) {
    switch (hit.surface) {
        case Surface::Floor:
            return FloorPaint(hit.point);
        case Surface::Ceiling:
            return CeilingPaint(hit.point);
        case Surface::LeftWall:
            return LeftWallPaint(hit.point);
        case Surface::RightWall:
            return RightWallPaint(hit.point);
        case Surface::WindowWall:
            return WindowWallPaint(hit.point);
        case Surface::Timber:
            return TimberPaint(hit.point);
        case Surface::Books:
            return BookcasePaint(hit);
        case Surface::Radiator:
            return RadiatorPaint(hit);
        case Surface::Grille:
            return Paint(60, 60, 62);
        case Surface::Clay:
            return Paint(188, 104, 72);
        case Surface::Leaves:
            return Mix(Paint(38, 84, 40), Paint(120, 160, 66),
                       Noise(hit.point.x * 60.0, hit.point.y * 60.0));
        case Surface::Enamel:
            return Paint(44, 96, 140);
        case Surface::Globe:
            return GlobePaint(hit.normal);
        case Surface::BackWall:
            return plaster;
        default:
            return white;
    }
}

double GlowOf(const Hit& hit) {
    return hit.surface == Surface::Lamp ? 1.1 : 0.0;
}

}  // namespace varnel::sample
