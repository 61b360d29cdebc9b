// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Settings that move along a film: at some times some numbers of the record are given, and between
// them they go from one to the next. Times are seconds from the film's first frame. Throws
// std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

#include "state/records/image_record.h"

namespace varnel {

inline constexpr double latestKey = 1e6;  // seconds, eleven days

// {"keys":[{"time":1.5,"ease":"linear","set":{"RotateY":-10}}]}, in any order; ease is linear,
// ease or hold, and linear where it is missing. The keys in their order, or one line that says what
// is wrong.
std::variant<FilmKeys, QString> FilmKeysFromJson(const QByteArray& json);
// One line, from which the same keys are read.
QByteArray ToJson(const FilmKeys& keys);

// The record at a time, as a photo's: each field by the keys that give it, as at the first of them
// before it and as at the last behind it. Without keys of that field it stays as it is.
ImageRecord RecordAt(const ImageRecord& image, const FilmKeys& keys, double seconds);

// Whether any key gives the field.
bool Moves(const FilmKeys& keys, const QString& field);

// The key whose time is nearest, if it is no more than `reach` seconds away; else the end.
FilmKeys::const_iterator KeyNear(const FilmKeys& keys, double seconds, double reach);

// Gives the field that value at that time: in the key that is within reach, or in a new one, which
// takes over how the one before it goes on.
void SetKey(FilmKeys& keys, double seconds, double reach, const QString& field, float value);

// Gives the key another time, 0 to latestKey; its new place. Where another key is within reach it
// stays as it is.
FilmKeys::const_iterator MoveKey(FilmKeys& keys, FilmKeys::const_iterator key, double seconds,
                                 double reach);

// The other keys as they are.
void RemoveKey(FilmKeys& keys, FilmKeys::const_iterator key);

}  // namespace varnel
