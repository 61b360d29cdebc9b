// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/preset_output.h"

#include "pipeline/output/name_pattern.h"
#include "remap/encode/output_type.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/adjustment_set.h"
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

QStringList NamesOf(PresetPart part, const ImageRecord& image) {
    switch (part) {
        case PresetPart::Projection: {
            QStringList names{QStringLiteral("Projection")};
            switch (ProjectionFromIndex(image.Projection)) {
                case Projection::Varnel:
                    names.append(QStringLiteral("EffectVarnel"));
                    break;
                case Projection::Rectilinear:
                    names.append(QStringLiteral("EffectRectilinear"));
                    break;
                default:
                    break;
            }
            return names;
        }
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
            settings.insert(name, all.value(name));
        }
        if (part == PresetPart::Output) {
            settings.insert(OutputOf(general));
        }
    }
    return settings;
}

}  // namespace varnel
