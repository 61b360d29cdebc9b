// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Named ways to convert and to write photos: adjustments (see adjustment_set.h) and, under the
// names below, how results are written. A preset holds only what it names and changes nothing else;
// gear and circle's centre are never among it. Throws nothing.
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "remap/image/photo_metadata.h"
#include "state/settings/settings_store.h"

namespace varnel {

// The output of a preset; values as in the settings store, {tokens} in the pattern.
namespace preset {
inline constexpr QLatin1StringView FileType("FileType");
inline constexpr QLatin1StringView JpegQuality("JPEGcompression");
inline constexpr QLatin1StringView JpegChroma444("JPEGchroma444");
inline constexpr QLatin1StringView WriteMetadata("WriteMetadata");
inline constexpr QLatin1StringView NamePattern("NamePattern");
}  // namespace preset

struct Preset {
    QString name;
    PictureSettings settings;

    bool operator==(const Preset&) const = default;
};
using Presets = std::vector<Preset>;

inline constexpr qsizetype longestPresetName = 60;
inline constexpr qsizetype mostPresets = 500;
inline constexpr qsizetype largestPresetFile = 1000000;  // bytes

const Presets& BuiltInPresets();
// As windows show it; own presets have no other name than their own.
QString ShownPresetName(const QString& name);

// Those of the user, in their order.
Presets OwnPresets(const SettingsStore& store);
void SaveOwnPresets(SettingsStore& store, const Presets& own);
// Built-in ones, then the user's.
Presets AllPresets(const SettingsStore& store);

// Small and capital letters are the same; null when there is none.
const Preset* FindPreset(const Presets& presets, const QString& name);
QStringList NamesOf(const Presets& presets);

// Why a preset cannot have that name beside those of the user, in words; empty when it can.
QString PresetNameError(const QString& name, const Presets& own);

// As a file, and back; nothing when the bytes are none of these. Only what a preset may hold and
// names that it may have come back.
QByteArray PresetsToBytes(const Presets& presets);
std::optional<Presets> PresetsFromBytes(const QByteArray& bytes);
// Adds presets that are not there yet; one whose name is taken gets a number behind it. Returns how
// many were added.
int AddPresets(const Presets& added, Presets& own);

}  // namespace varnel
