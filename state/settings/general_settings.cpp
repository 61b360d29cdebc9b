// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/general_settings.h"

#include <algorithm>

#include "state/settings/number_text.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

int ReadPreviewSide(const SettingsStore& store, const QString& key, int fallback) {
    const int side = ReadWhole(store, setting::General, key, fallback);
    return side < 1 ? fallback : std::min(side, largestPreviewSide);
}

bool ReadFlag(const SettingsStore& store, const QString& key, bool fallback) {
    const int flag = ReadWhole(store, setting::General, key, fallback ? 1 : 0);
    return flag == 0 || flag == 1 ? flag == 1 : fallback;
}

}  // namespace

GeneralSettings LoadSettings(const SettingsStore& store) {
    GeneralSettings settings;
    settings.PreviewWidth = ReadPreviewSide(store, setting::PreviewWidth, settings.PreviewWidth);
    settings.PreviewHeight = ReadPreviewSide(store, setting::PreviewHeight, settings.PreviewHeight);
    settings.FileType = store.Get(setting::General, setting::FileType, settings.FileType);
    const int quality =
        ReadWhole(store, setting::General, setting::JpegCompression, settings.JPEGcompression);
    if (quality >= 0 && quality <= 100) {
        settings.JPEGcompression = static_cast<std::int16_t>(quality);
    }
    const auto read = [&store](bool& flag, const QString& key) {
        flag = ReadFlag(store, key, flag);
    };
    read(settings.JPEGchroma444, setting::JpegChroma444);
    read(settings.FineSampling, setting::FineSampling);
    read(settings.AutoOrient, setting::AutoOrient);
    read(settings.OfferGear, setting::OfferGear);
    read(settings.TakeGear, setting::TakeGear);
    read(settings.WriteMetadata, setting::WriteMetadata);
    read(settings.WriteSettings, setting::WriteSettings);
    read(settings.KeepDepth, setting::KeepDepth);
    read(settings.LessMemory, setting::LessMemory);
    settings.TiffCompression =
        store.Get(setting::General, setting::TiffCompression, settings.TiffCompression);
    settings.Language = store.Get(setting::General, setting::Language, settings.Language);
    return settings;
}

}  // namespace varnel
