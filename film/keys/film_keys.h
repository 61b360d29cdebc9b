// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Settings that move along a film: at some times some numbers of the record are given, and between
// them they go from one to the next. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <variant>
#include <vector>

#include "state/records/image_record.h"

namespace varnel {

// How the numbers go from a key to the next one: evenly, slowly out and slowly in (cubic, 3t^2 -
// 2t^3), or not at all until the next one is there.
enum class KeyEase : std::uint8_t { Linear, Ease, Hold };

struct FilmKey {
    double time = 0.0;  // seconds from the film's start, 0 or more
    KeyEase ease = KeyEase::Linear;
    QMap<QString, float> set;  // by the record field's name; any that a morph moves

    bool operator==(const FilmKey&) const = default;
};

// In the order of their times, no two of them at the same time.
using FilmKeys = std::vector<FilmKey>;

// {"keys":[{"time":1.5,"ease":"linear","set":{"RotateY":-10}}]}. The keys, or one line that says
// what is wrong.
std::variant<FilmKeys, QString> FilmKeysFromJson(const QByteArray& json);
QByteArray ToJson(const FilmKeys& keys);

// The record at a time: each field by the keys that give it, as at the first of them before it and
// as at the last behind it.
ImageRecord RecordAt(const ImageRecord& image, const FilmKeys& keys, double seconds);

}  // namespace varnel
