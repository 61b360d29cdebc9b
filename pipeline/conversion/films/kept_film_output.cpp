// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/films/kept_film_output.h"

#include "state/settings/setting_names.h"

namespace varnel {

namespace {

constexpr QLatin1StringView codecKey("FilmCodec");
constexpr QLatin1StringView crfKey("FilmCrf");
constexpr QLatin1StringView speedKey("FilmSpeed");
constexpr int mostCrf = 63;  // of all encoders

}  // namespace

FilmOutput LoadFilmOutput(const SettingsStore& store) {
    FilmOutput output;
    output.codec = store.Get(setting::LastUsed, codecKey, output.codec);
    bool isNumber = false;
    const int crf = store.Get(setting::LastUsed, crfKey, {}).toInt(&isNumber);
    if (isNumber && crf >= 0 && crf <= mostCrf) {
        output.crf = crf;
    }
    output.speed = store.Get(setting::LastUsed, speedKey, {});
    return output;
}

void SaveFilmOutput(const FilmOutput& output, SettingsStore& store) {
    store.Save(setting::LastUsed, codecKey, output.codec);
    store.Save(setting::LastUsed, crfKey, output.crf ? QString::number(*output.crf) : QString());
    store.Save(setting::LastUsed, speedKey, output.speed);
}

}  // namespace varnel
