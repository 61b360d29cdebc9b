// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the record of a film holds beside the settings of a picture. Times are seconds from the
// film's first frame. Throws nothing.
#pragma once

#include <QMap>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace varnel {

// How the numbers go from a key to the next one: evenly, slowly out and slowly in (cubic, 3t^2 -
// 2t^3), or not at all until the next one is there.
enum class KeyEase : std::uint8_t { Linear, Ease, Hold };

struct FilmKey {
    double time = 0.0;  // 0 or more
    KeyEase ease = KeyEase::Linear;
    QMap<QString, float> set;  // by the record field's name; any that a morph moves

    bool operator==(const FilmKey&) const = default;
};

// In the order of their times, no two of them at the same time.
using FilmKeys = std::vector<FilmKey>;

struct FilmCourse {
    double in = 0.0;            // what is before is left out
    std::optional<double> out;  // what is from there on is left out; none: up to the end
    FilmKeys keys;
    double at = 0.0;  // the time of which the record's own numbers are, where keys move them

    bool operator==(const FilmCourse&) const = default;
};

}  // namespace varnel
