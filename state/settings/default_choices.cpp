// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/default_choices.h"

#include <algorithm>

#include "state/settings/setting_names.h"

namespace varnel {

int LanguagePosition(QStringView code) {
    const auto* const found = std::ranges::find_if(
        languages, [&](const Language& language) { return language.code == code; });
    return found == languages.end() ? 0 : static_cast<int>(found - languages.begin());
}

void BeginSettings(SettingsStore& store) {
    const bool isNew = store.Get(setting::Revision, setting::RevisionAge, {}).isEmpty();
    if (isNew && store.Get(setting::General, setting::FineSampling, {}).isEmpty()) {
        store.Save(setting::General, setting::FineSampling, QStringLiteral("1"));
    }
}

void SaveDefaults(SettingsStore& store, const QString& defaultGearName,
                  const GeneralSettings& settings) {
    store.Save(setting::Gear, setting::DefaultGearName, defaultGearName);
    const auto save = [&](QLatin1StringView key, const QString& text) {
        store.Save(setting::General, key, text);
    };
    save(setting::PreviewWidth, QString::number(settings.PreviewWidth));
    save(setting::PreviewHeight, QString::number(settings.PreviewHeight));
    save(setting::FileType, settings.FileType);
    save(setting::JpegCompression, QString::number(settings.JPEGcompression));
    const auto saveFlag = [&](QLatin1StringView key, bool flag) {
        save(key, QString::number(flag ? 1 : 0));
    };
    saveFlag(setting::JpegChroma444, settings.JPEGchroma444);
    saveFlag(setting::FineSampling, settings.FineSampling);
    saveFlag(setting::AutoOrient, settings.AutoOrient);
    saveFlag(setting::OfferGear, settings.OfferGear);
    saveFlag(setting::TakeGear, settings.TakeGear);
    saveFlag(setting::WriteMetadata, settings.WriteMetadata);
    saveFlag(setting::WriteSettings, settings.WriteSettings);
    saveFlag(setting::KeepDepth, settings.KeepDepth);
    saveFlag(setting::LessMemory, settings.LessMemory);
    save(setting::TiffCompression, settings.TiffCompression);
    save(setting::Language, settings.Language);
}

}  // namespace varnel
