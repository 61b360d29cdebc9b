// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/preset_output.h"

#include <algorithm>
#include <array>

#include "pipeline/output/name_pattern.h"
#include "remap/encode/output_type.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/adjustment_set.h"
#include "state/adjustments/choice_table.h"
#include "state/adjustments/control_values.h"
#include "state/settings/number_text.h"

namespace varnel {

namespace {

QString FlagText(bool flag) {
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

void TakeFlag(const PictureSettings& settings, QLatin1StringView name, bool& flag) {
    const std::optional<int> number = WholeFromText(settings.value(name));
    flag = number ? *number != 0 : flag;
}

bool IsAPartOfItsOwn(SliderId id) {
    constexpr std::array ids{SliderId::AovOutput, SliderId::X,          SliderId::Y,
                             SliderId::Z,         SliderId::XTranslate, SliderId::YTranslate,
                             SliderId::Effect};
    return std::ranges::find(ids, id) != ids.end();
}

// The projection and all that no other would read.
QStringList ProjectionNames(Projection projection) {
    QStringList names{QStringLiteral("Projection")};
    const ControlUse* const effect = UseOf(projection, SliderId::Effect);
    if (effect != nullptr && effect->shown) {
        names.append(InfoOf(projection).effect == &ImageRecord::EffectVarnel
                         ? QStringLiteral("EffectVarnel")
                         : QStringLiteral("EffectRectilinear"));
    }
    for (const ControlUse& use : InfoOf(projection).controls) {
        if (!IsAPartOfItsOwn(use.id)) {
            names.append(QString::fromLatin1(FieldOf(use.id)->name));
        }
    }
    for (const ChoiceId choice : InfoOf(projection).choices) {
        names.append(QString::fromLatin1(ChoiceRowOf(choice).field));
    }
    return names;
}

QStringList NamesOf(PresetPart part, const ImageRecord& image) {
    switch (part) {
        case PresetPart::Projection:
            return ProjectionNames(ProjectionFromIndex(image.Projection));
        case PresetPart::OutputAov:
            return {QStringLiteral("OutputAOV")};
        case PresetPart::Rotation:
            return {QStringLiteral("RotateX"), QStringLiteral("RotateY"),
                    QStringLiteral("RotateZ")};
        case PresetPart::Shift:
            return {QStringLiteral("TranslateX"), QStringLiteral("TranslateY")};
        case PresetPart::Output:
            break;
    }
    return {};
}

}  // namespace

PictureSettings OutputOf(const GeneralSettings& settings) {
    PictureSettings output{
        {preset::FileType, ToText(OutputTypeFromText(settings.FileType))},
        {preset::JpegQuality, QString::number(settings.JPEGcompression)},
        {preset::JpegChroma444, FlagText(settings.JPEGchroma444)},
        {preset::WriteMetadata, FlagText(settings.WriteMetadata)},
    };
    if (!settings.NamePattern.isEmpty()) {
        output.insert(preset::NamePattern, settings.NamePattern);
    }
    return output;
}

bool TakeOutput(const PictureSettings& settings, GeneralSettings& general) {
    if (const auto type = OutputTypeByName(settings.value(preset::FileType))) {
        general.FileType = ToText(*type);
    }
    const std::optional<int> quality = WholeFromText(settings.value(preset::JpegQuality));
    if (quality && *quality >= 1 && *quality <= 100) {
        general.JPEGcompression = static_cast<std::int16_t>(*quality);
    }
    TakeFlag(settings, preset::JpegChroma444, general.JPEGchroma444);
    TakeFlag(settings, preset::WriteMetadata, general.WriteMetadata);
    const QString pattern = settings.value(preset::NamePattern);
    if (PatternError(pattern).isEmpty()) {
        general.NamePattern = pattern;
    }
    return settings.contains(preset::FileType) || settings.contains(preset::JpegQuality) ||
           settings.contains(preset::JpegChroma444) || settings.contains(preset::WriteMetadata) ||
           settings.contains(preset::NamePattern);
}

PictureSettings PresetSettings(const PresetParts& parts, const ImageRecord& image,
                               const GeneralSettings& general) {
    const PictureSettings all = AdjustmentsOf(image);
    PictureSettings settings;
    for (const PresetPart part : parts) {
        for (const QString& name : NamesOf(part, image)) {
            if (const auto value = all.constFind(name); value != all.constEnd()) {
                settings.insert(name, *value);
            }
        }
        if (part == PresetPart::Output) {
            settings.insert(OutputOf(general));
        }
    }
    return settings;
}

}  // namespace varnel
