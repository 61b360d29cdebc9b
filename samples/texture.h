// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Patterns from plain arithmetic, the same on every machine, and sums of colours. Colours here are
// amounts of light, 1 for a sheet of white paper in full light, not yet the levels of a picture.
#pragma once

#include <cstdint>

#include "samples/scene.h"

namespace varnel::sample {

constexpr Colour operator*(const Colour& colour, double factor) {
    return {colour.red * factor, colour.green * factor, colour.blue * factor};
}
constexpr Colour operator*(const Colour& a, const Colour& b) {
    return {a.red * b.red, a.green * b.green, a.blue * b.blue};
}
constexpr Colour operator+(const Colour& a, const Colour& b) {
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}
// a at share 0, b at share 1.
constexpr Colour Mix(const Colour& a, const Colour& b, double share) {
    return a * (1.0 - share) + b * share;
}

// The light of a surface that shows these levels (0..255) in full light. The picture's levels are
// the square root of light, close enough to a camera's curve and quick.
constexpr Colour Paint(int red, int green, int blue) {
    return {red * red / 65025.0, green * green / 65025.0, blue * blue / 65025.0};
}

// The levels of an amount of light; what is brighter than paper is compressed, never cut.
Colour Levels(const Colour& light);

// A number in [0, 1) for a cell of a grid.
double Hash(std::int64_t column, std::int64_t row);
// Soft noise in [0, 1) with one bump per unit.
double Noise(double x, double y);

// The part after the point, in [0, 1), also for negative numbers.
double Fraction(double x);
constexpr bool Between(double x, double low, double high) {
    return low <= x && x < high;
}
// 0 at from and before, 1 at to and beyond, a straight slope between; from may be the larger.
double Ramp(double x, double from, double to);

// Marks like lines of small print. u counts letters to the right, v lines downward.
bool IsInk(double u, double v);

}  // namespace varnel::sample
