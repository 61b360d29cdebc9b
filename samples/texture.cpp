// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "samples/texture.h"

#include <algorithm>
#include <cmath>

namespace varnel::sample {

namespace {

double Level(double light) {
    constexpr double knee = 0.6;  // below it light is kept as it is
    if (light > knee) {
        const double excess = (light - knee) / (1.0 - knee);
        light = knee + (1.0 - knee) * excess / (1.0 + excess);
    }
    return 255.0 * std::sqrt(std::max(light, 0.0));
}

double Smooth(double t) {
    return t * t * (3.0 - 2.0 * t);
}

}  // namespace

Colour Levels(const Colour& light) {
    return {Level(light.red), Level(light.green), Level(light.blue)};
}

double Hash(std::int64_t column, std::int64_t row) {
    // The finishing steps of a well known 64-bit mixer (splitmix64).
    std::uint64_t bits = static_cast<std::uint64_t>(column) * 0x9E3779B97F4A7C15U +
                         static_cast<std::uint64_t>(row) * 0xC2B2AE3D27D4EB4FU;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31U;
    return static_cast<double>(bits >> 11U) * 0x1.0p-53;
}

double Noise(double x, double y) {
    const double left = std::floor(x);
    const double low = std::floor(y);
    const std::int64_t column = static_cast<std::int64_t>(left);
    const std::int64_t row = static_cast<std::int64_t>(low);
    const double across = Smooth(x - left);
    const double up = Smooth(y - low);
    const double below = std::lerp(Hash(column, row), Hash(column + 1, row), across);
    const double above = std::lerp(Hash(column, row + 1), Hash(column + 1, row + 1), across);
    return std::lerp(below, above, up);
}

double Fraction(double x) {
    return x - std::floor(x);
}

double Ramp(double x, double from, double to) {
    return std::clamp((x - from) / (to - from), 0.0, 1.0);
}

bool IsInk(double u, double v) {
    // A letter is 3 by 5 dots in a cell of 4 by 8; words end where the hash says, lines are ragged.
    const std::int64_t letter = static_cast<std::int64_t>(std::floor(u));
    const std::int64_t line = static_cast<std::int64_t>(std::floor(v));
    const int column = static_cast<int>(Fraction(u) * 4.0);
    const int row = static_cast<int>(Fraction(v) * 8.0);
    if (column == 3 || row > 4 || Hash(letter, line) < 0.17) {
        return false;
    }
    return column == 0 ? Hash(letter * 3 + 1, line * 8 + row) < 0.8
                       : Hash(letter * 3 + column + 1, line * 8 + row) < 0.5;
}

}  // namespace varnel::sample
