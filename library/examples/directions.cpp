// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where pixels look: directions LENS WIDTH HEIGHT < points > angles
// Lines of "x y" in pixels from the top left become lines of "zenith azimuth" in degrees, as of a
// camera that looks straight up with its top to the north: azimuth from north by east, and east is
// on the left.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <varnel/varnel.hpp>

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "directions: give a lens, width and height\n");
        return EXIT_FAILURE;
    }
    try {
        const varnel::Lens lens = varnel::Lens::FromCatalogue(argv[1]);
        const varnel::Size photo{std::atoi(argv[2]), std::atoi(argv[3])};
        std::vector<varnel::Point> points;
        for (varnel::Point point; std::scanf("%lf %lf", &point.x, &point.y) == 2;) {
            points.push_back(point);
        }
        constexpr double degrees = 180.0 / 3.14159265358979323846;
        for (const varnel::Direction& ray : lens.Directions(photo, points)) {
            const double azimuth = std::atan2(-ray.x, ray.y) * degrees;
            std::printf("%.3f %.3f\n", std::acos(ray.z) * degrees,
                        azimuth < 0.0 ? azimuth + 360.0 : azimuth);
        }
    } catch (const varnel::Error& error) {
        std::fprintf(stderr, "directions: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
