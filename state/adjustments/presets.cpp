// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/presets.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>

#include "state/adjustments/adjustment_set.h"
#include "state/adjustments/picture_settings.h"
#include "state/settings/number_text.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Presets)
};

constexpr std::array builtInNames{
    QT_TRANSLATE_NOOP("Presets", "Real estate"), QT_TRANSLATE_NOOP("Presets", "Group photo"),
    QT_TRANSLATE_NOOP("Presets", "Whole circle"), QT_TRANSLATE_NOOP("Presets", "Horizon strip")};

constexpr std::array outputNames{preset::FileType, preset::JpegQuality, preset::JpegChroma444,
                                 preset::WriteMetadata, preset::NamePattern};

constexpr QLatin1StringView presetsKey("VarnelPresets");
constexpr QLatin1StringView nameKey("name");
constexpr QLatin1StringView settingsKey("settings");
constexpr qsizetype longestValue = 200;  // letters

bool IsPlain(const QString& text) {
    return text.isValidUtf16() && std::ranges::all_of(text, [](QChar c) {
               return c.isPrint() || c.category() == QChar::Other_Surrogate;
           });
}

bool MayBeName(const QString& name) {
    return !name.isEmpty() && name.size() <= longestPresetName && name == name.trimmed() &&
           IsPlain(name);
}

// Adjustments that a record takes, and output in plain letters.
PictureSettings Usable(const PictureSettings& settings) {
    PictureSettings usable;
    for (const QString& name : AdjustmentNames()) {
        ImageRecord probe;
        const auto value = settings.constFind(name);
        if (value != settings.constEnd() && TakeSettings({{name, *value}}, probe).isEmpty()) {
            usable.insert(name, *value);
        }
    }
    for (const QLatin1StringView name : outputNames) {
        const QString value = settings.value(name);
        if (!value.isEmpty() && value.size() <= longestValue && IsPlain(value)) {
            usable.insert(name, value);
        }
    }
    return usable;
}

QJsonObject JsonOf(const Preset& preset) {
    QJsonObject settings;
    for (const auto& [name, value] : preset.settings.asKeyValueRange()) {
        settings.insert(name, value);
    }
    return {{nameKey, preset.name}, {settingsKey, settings}};
}

std::optional<Preset> PresetFrom(const QJsonObject& object) {
    const QJsonObject values = object.value(settingsKey).toObject();
    PictureSettings settings;
    for (auto value = values.begin(); value != values.end(); ++value) {
        settings.insert(value.key(), value->toString());
    }
    Preset preset{object.value(nameKey).toString(), Usable(settings)};
    return MayBeName(preset.name) && !preset.settings.isEmpty() ? std::optional(preset)
                                                                : std::nullopt;
}

bool IsTaken(const QString& name, const Presets& own) {
    return FindPreset(BuiltInPresets(), name) != nullptr || FindPreset(own, name) != nullptr;
}

QString FreeName(const QString& name, const Presets& own) {
    QString free = name;
    for (int number = 2; IsTaken(free, own); ++number) {
        const QString end = QStringLiteral(" (%1)").arg(number);
        free = name.left(longestPresetName - end.size()) + end;
    }
    return free;
}

}  // namespace

const Presets& BuiltInPresets() {
    static const Presets presets{
        {QString::fromLatin1(builtInNames[0]),
         {{QStringLiteral("Projection"), QStringLiteral("Rectilinear")},
          {QStringLiteral("OutputAOV"), QStringLiteral("90")},
          {QStringLiteral("RotateX"), QStringLiteral("0")}}},
        {QString::fromLatin1(builtInNames[1]),
         {{QStringLiteral("Projection"), QStringLiteral("Rectilinear")},
          {QStringLiteral("OutputAOV"), QStringLiteral("75")},
          {QStringLiteral("EffectRectilinear"), QStringLiteral("80")}}},
        {QString::fromLatin1(builtInNames[2]),
         {{QStringLiteral("Projection"), QStringLiteral("Varnel")},
          {QStringLiteral("EffectVarnel"), QStringLiteral("100")}}},
        {QString::fromLatin1(builtInNames[3]),
         {{QStringLiteral("Projection"), QStringLiteral("Horizon")}}},
    };
    return presets;
}

QString ShownPresetName(const QString& name) {
    const bool builtIn = FindPreset(BuiltInPresets(), name) != nullptr;
    return builtIn ? Texts::tr(name.toLatin1().constData()) : name;
}

Presets OwnPresets(const SettingsStore& store) {
    Presets own;
    const int count = std::min(ReadWhole(store, setting::Presets, setting::NumPreset, 0),
                               static_cast<int>(mostPresets));
    for (int number = 1; number <= count; ++number) {
        const QString text =
            store.Get(setting::Presets, setting::ItemKey(setting::Preset, number), {});
        const auto preset = PresetFrom(QJsonDocument::fromJson(text.toUtf8()).object());
        if (preset && !IsTaken(preset->name, own)) {
            own.push_back(*preset);
        }
    }
    return own;
}

void SaveOwnPresets(SettingsStore& store, const Presets& own) {
    int number = 0;
    for (const Preset& preset : own) {
        const QByteArray text = QJsonDocument(JsonOf(preset)).toJson(QJsonDocument::Compact);
        store.Save(setting::Presets, setting::ItemKey(setting::Preset, ++number),
                   QString::fromUtf8(text));
    }
    store.Save(setting::Presets, setting::NumPreset, QString::number(number));
}

Presets AllPresets(const SettingsStore& store) {
    Presets all = BuiltInPresets();
    const Presets own = OwnPresets(store);
    all.insert(all.end(), own.begin(), own.end());
    return all;
}

const Preset* FindPreset(const Presets& presets, const QString& name) {
    const auto found = std::ranges::find_if(presets, [&name](const Preset& preset) {
        return preset.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == presets.end() ? nullptr : &*found;
}

QStringList NamesOf(const Presets& presets) {
    QStringList names;
    for (const Preset& preset : presets) {
        names.append(preset.name);
    }
    return names;
}

QString PresetNameError(const QString& name, const Presets& own) {
    if (!MayBeName(name)) {
        return Texts::tr("A preset needs a name of 1 to %1 letters.").arg(longestPresetName);
    }
    return IsTaken(name, own) ? Texts::tr("There is a preset \"%1\" already.").arg(name)
                              : QString();
}

QByteArray PresetsToBytes(const Presets& presets) {
    QJsonArray array;
    for (const Preset& preset : presets) {
        array.append(JsonOf(preset));
    }
    return QJsonDocument(QJsonObject{{presetsKey, array}}).toJson();
}

std::optional<Presets> PresetsFromBytes(const QByteArray& bytes) {
    if (bytes.size() > largestPresetFile) {
        return std::nullopt;
    }
    const QJsonValue array = QJsonDocument::fromJson(bytes).object().value(presetsKey);
    if (!array.isArray()) {
        return std::nullopt;
    }
    Presets presets;
    for (const auto& value : array.toArray()) {
        if (const auto preset = PresetFrom(value.toObject())) {
            presets.push_back(*preset);
        }
    }
    return presets;
}

int AddPresets(const Presets& added, Presets& own) {
    int count = 0;
    for (const Preset& preset : added) {
        const bool isThere = std::ranges::find(own, preset) != own.end();
        if (!isThere && own.size() < static_cast<std::size_t>(mostPresets)) {
            own.push_back({FreeName(preset.name, own), preset.settings});
            ++count;
        }
    }
    return count;
}

}  // namespace varnel
