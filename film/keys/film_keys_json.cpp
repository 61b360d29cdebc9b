// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "base/nearest_name.h"
#include "film/keys/film_keys.h"
#include "state/adjustments/moved_fields.h"
#include "state/adjustments/picture_settings.h"

namespace varnel {

namespace {

constexpr QLatin1StringView keysName("keys");
constexpr QLatin1StringView timeName("time");
constexpr QLatin1StringView easeName("ease");
constexpr QLatin1StringView setName("set");

// In the order of KeyEase.
constexpr std::array easeTexts{QLatin1StringView("linear"), QLatin1StringView("ease"),
                               QLatin1StringView("hold")};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FilmKeys)
};

QString AskIfMeant(const QString& wrong, const QStringList& names) {
    const QString nearest = Nearest(wrong, names);
    return nearest.isEmpty() ? Texts::tr("there is %1").arg(names.join(QStringLiteral(", ")))
                             : Texts::tr("did you mean \"%1\"?").arg(nearest);
}

// What is wrong with the names of an object; empty when nothing is.
QString OddName(const QJsonObject& object, const QStringList& known) {
    for (const QString& name : object.keys()) {
        if (!known.contains(name)) {
            return Texts::tr("\"%1\" means nothing here; %2")
                .arg(Shown(name), AskIfMeant(name, known));
        }
    }
    return {};
}

// The following take one member of a key into it and return what is wrong, or nothing.
QString TakeTime(const QJsonValue& value, FilmKey& key) {
    key.time = value.toDouble(-1.0);
    return key.time >= 0.0 && key.time <= latestKey
               ? QString()
               : Texts::tr("\"time\" must be a number of seconds from 0 to %1")
                     .arg(latestKey, 0, 'f', 0);
}

QString TakeEase(const QJsonValue& value, FilmKey& key) {
    const auto* const found = std::ranges::find(easeTexts, value.toString());
    if (value.isUndefined() || found != easeTexts.end()) {
        key.ease = static_cast<KeyEase>(value.isUndefined() ? 0 : found - easeTexts.begin());
        return {};
    }
    return Texts::tr("\"ease\" must be linear, ease or hold");
}

QString TakeField(const QString& name, const QJsonValue& value, FilmKey& key) {
    if (MovedFieldOf(name) == nullptr) {
        return Texts::tr("\"%1\" is no setting that moves; %2")
            .arg(Shown(name), AskIfMeant(name, MovedFieldNames()));
    }
    if (!value.isDouble()) {
        return Texts::tr("the value of %1 must be a number").arg(name);
    }
    const double number = value.toDouble();
    // In the range in which a picture may have it.
    ImageRecord probe;
    const QStringList notes =
        TakeSettings({{name, QString::number(number, 'g', QLocale::FloatingPointShortest)}}, probe);
    key.set.insert(name, static_cast<float>(number));
    return notes.isEmpty() ? QString() : notes.constFirst();
}

QString TakeSet(const QJsonValue& value, FilmKey& key) {
    const QJsonObject fields = value.toObject();
    if (fields.isEmpty()) {
        return Texts::tr("\"set\" must hold settings and their numbers");
    }
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (QString error = TakeField(field.key(), field.value(), key); !error.isEmpty()) {
            return error;
        }
    }
    return {};
}

QString TakeKey(const QJsonValue& value, FilmKey& key) {
    if (!value.isObject()) {
        return Texts::tr("it must be an object with time and set");
    }
    const QJsonObject object = value.toObject();
    for (const QString& error :
         {OddName(object, {timeName, easeName, setName}), TakeTime(object.value(timeName), key),
          TakeEase(object.value(easeName), key), TakeSet(object.value(setName), key)}) {
        if (!error.isEmpty()) {
            return error;
        }
    }
    return {};
}

// The shortest number that is read as this one.
double Written(float value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return QByteArray(digits.data(), end - digits.data()).toDouble();
}

}  // namespace

std::variant<FilmKeys, QString> FilmKeysFromJson(const QByteArray& json) {
    QJsonParseError parse;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parse);
    if (parse.error != QJsonParseError::NoError) {
        return Texts::tr("it is not JSON: %1 at byte %2")
            .arg(parse.errorString())
            .arg(parse.offset);
    }
    const QJsonObject object = document.object();
    if (const QString error = OddName(object, {keysName}); !error.isEmpty()) {
        return error;
    }
    if (!object.value(keysName).isArray()) {
        return Texts::tr("it has no list \"keys\"");
    }
    FilmKeys keys;
    for (const auto& value : object.value(keysName).toArray()) {
        FilmKey key;
        if (const QString error = TakeKey(value, key); !error.isEmpty()) {
            return Texts::tr("key %1: %2").arg(keys.size() + 1).arg(error);
        }
        keys.push_back(key);
    }
    std::ranges::stable_sort(keys, {}, &FilmKey::time);
    const auto twice = std::ranges::adjacent_find(keys, {}, &FilmKey::time);
    if (twice != keys.end()) {
        return Texts::tr("there are two keys at %1 seconds").arg(twice->time, 0, 'g', 10);
    }
    return keys;
}

QByteArray ToJson(const FilmKeys& keys) {
    QJsonArray array;
    for (const FilmKey& key : keys) {
        QJsonObject set;
        for (const auto& [name, value] : key.set.asKeyValueRange()) {
            set.insert(name, Written(value));
        }
        array.append(QJsonObject{{timeName, key.time},
                                 {easeName, easeTexts[static_cast<std::size_t>(key.ease)]},
                                 {setName, set}});
    }
    return QJsonDocument(QJsonObject{{keysName, array}}).toJson(QJsonDocument::Compact);
}

}  // namespace varnel
