// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/take_preset.h"

#include "cli/options/nearest.h"
#include "cli/options/option_list.h"
#include "pipeline/output/preset_output.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/adjustment_set.h"
#include "state/adjustments/outside_text.h"
#include "state/settings/number_text.h"

namespace varnel {

namespace {

QString UnknownPreset(const QString& name, const Presets& presets) {
    const QStringList names = NamesOf(presets);
    QStringList quoted;
    for (const QString& known : names) {
        quoted.append(u'"' + known + u'"');
    }
    return AskIfMeant(QStringLiteral("there is no preset \"%1\"").arg(name), Nearest(name, names),
                      QStringLiteral("presets: ") + quoted.join(QStringLiteral(", ")));
}

// In front of the numbers that the command line gives: those come later and win.
void TakeNumbers(const PictureSettings& settings, Options& options) {
    std::vector<Adjustment> numbers;
    for (const auto& [field, text] : settings.asKeyValueRange()) {
        const std::optional<float> number = FloatFromPointText(text);
        if (number && AdjustmentNames().contains(field)) {
            numbers.push_back({field, *number});
        }
    }
    for (const WordOption& option : WordOptions()) {
        const QString field = OptionText(option.field);
        if (const auto word = settings.constFind(field); word != settings.constEnd()) {
            options.fields.emplace(options.fields.begin(), field, *word);
        }
    }
    options.adjustments.insert(options.adjustments.begin(), numbers.begin(), numbers.end());
}

}  // namespace

QString TakePreset(const SettingsStore& store, Options& options, GeneralSettings& settings) {
    if (options.preset.isEmpty()) {
        return {};
    }
    const Presets presets = AllPresets(store);
    const Preset* const preset = FindPreset(presets, options.preset.trimmed());
    if (preset == nullptr) {
        return UnknownPreset(options.preset, presets);
    }
    TakeNumbers(preset->settings, options);
    if (!options.frame.outside) {
        options.frame.outside = OutsideFromText(preset->settings.value(QStringLiteral("Outside")));
    }
    TakeOutput(preset->settings, settings);
    if (options.namePattern.isEmpty() && options.output.isEmpty()) {
        options.namePattern = settings.NamePattern;
    }
    const auto projection =
        ProjectionFromText(preset->settings.value(QStringLiteral("Projection")));
    if (options.projectionGiven || (!projection && !options.like.isEmpty())) {
        return {};
    }
    // The picture of --like stands behind the preset.
    options.projectionGiven = projection.has_value();
    return UseProjection(options, projection.value_or(options.projections.front()))
        .value_or(QString());
}

}  // namespace varnel
