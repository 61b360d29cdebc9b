// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the user may choose as defaults, and how the choice is kept. Throws nothing.
#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>
#include <array>

#include "state/settings/general_settings.h"
#include "state/settings/settings_store.h"

namespace varnel {

inline constexpr int smallestPreviewSide = 100;  // pixels, as the dialog offers it
inline constexpr int lowestJpegQuality = 1;
inline constexpr int highestJpegQuality = 100;

struct Language {
    QLatin1StringView code;  // the setting "Language"
    QStringView name;        // in that language
};

// The languages of the window in the order of the dialog's list. The first one is what stands in
// the sources.
inline constexpr std::array languages{
    Language{QLatin1StringView("en"), u"English"}, Language{QLatin1StringView("de"), u"Deutsch"},
    Language{QLatin1StringView("es"), u"Español"}, Language{QLatin1StringView("fr"), u"Français"}};

// The index of a language in that list; any other text means the first one.
int LanguagePosition(QStringView code);

// Before anything else is done with the settings: a new installation's window saves by the fine
// sampling, while settings of older releases, which know of none, keep the classic one.
void BeginSettings(SettingsStore& store);

// Writes the default gear and the general settings, in this order: gear, width, height, file type,
// quality, what is on or off, the compression of TIFF files, language.
void SaveDefaults(SettingsStore& store, const QString& defaultGearName,
                  const GeneralSettings& settings);

}  // namespace varnel
