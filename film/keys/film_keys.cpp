// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/keys/film_keys.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "state/adjustments/moved_fields.h"

namespace varnel {

namespace {

// Part of the way to the next key, 0 to 1, at part t of the time to it.
double Eased(KeyEase ease, double t) {
    switch (ease) {
        case KeyEase::Ease:
            return t * t * (3.0 - 2.0 * t);
        case KeyEase::Hold:
            return 0.0;
        case KeyEase::Linear:
            break;
    }
    return t;
}

// The first key at or behind a time.
FilmKeys::iterator Behind(FilmKeys& keys, double seconds) {
    return std::ranges::lower_bound(keys, seconds, {}, &FilmKey::time);
}

}  // namespace

ImageRecord RecordAt(const ImageRecord& image, const FilmKeys& keys, double seconds) {
    ImageRecord record = image;
    record.Film.reset();
    const auto middle = std::ranges::upper_bound(keys, seconds, {}, &FilmKey::time);
    for (const MovedField& moved : movedFields) {
        const QString name = moved.name;
        const auto gives = [&name](const FilmKey& key) { return key.set.contains(name); };
        const auto after = std::find_if(middle, keys.end(), gives);
        const auto back = std::find_if(std::make_reverse_iterator(middle), keys.rend(), gives);
        if (back == keys.rend()) {
            record.*moved.field = after == keys.end() ? record.*moved.field : after->set[name];
        } else if (after == keys.end()) {
            record.*moved.field = back->set[name];
        } else {
            const double t = (seconds - back->time) / (after->time - back->time);
            record.*moved.field = OnTheWay(moved, back->set[name], after->set[name],
                                           static_cast<float>(Eased(back->ease, t)));
        }
    }
    return record;
}

bool Moves(const FilmKeys& keys, const QString& field) {
    return std::ranges::any_of(keys,
                               [&field](const FilmKey& key) { return key.set.contains(field); });
}

FilmKeys::const_iterator KeyNear(const FilmKeys& keys, double seconds, double reach) {
    const auto nearest = std::ranges::min_element(
        keys, {}, [seconds](const FilmKey& key) { return std::abs(key.time - seconds); });
    return nearest != keys.end() && std::abs(nearest->time - seconds) <= reach ? nearest
                                                                               : keys.end();
}

void SetKey(FilmKeys& keys, double seconds, double reach, const QString& field, float value) {
    if (const auto there = KeyNear(keys, seconds, reach); there != keys.end()) {
        keys[static_cast<std::size_t>(there - keys.begin())].set.insert(field, value);
        return;
    }
    const auto next = Behind(keys, seconds);
    const KeyEase ease = next == keys.begin() ? KeyEase::Linear : std::prev(next)->ease;
    keys.insert(next, {seconds, ease, {{field, value}}});
}

FilmKeys::const_iterator MoveKey(FilmKeys& keys, FilmKeys::const_iterator key, double seconds,
                                 double reach) {
    const double wanted = std::clamp(seconds, 0.0, latestKey);
    const auto place = keys.begin() + (key - keys.cbegin());
    const auto isInTheWay = [&](const FilmKey& other) {
        return &other != &*place && std::abs(other.time - wanted) <= reach;
    };
    if (std::ranges::any_of(keys, isInTheWay)) {
        return key;
    }
    FilmKey moved = std::move(*place);
    moved.time = wanted;
    keys.erase(place);
    return keys.insert(Behind(keys, wanted), std::move(moved));
}

void RemoveKey(FilmKeys& keys, FilmKeys::const_iterator key) {
    keys.erase(key);
}

}  // namespace varnel
