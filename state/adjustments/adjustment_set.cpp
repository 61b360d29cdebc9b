// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/adjustment_set.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1StringView>
#include <array>

#include "state/adjustments/picture_settings.h"
#include "state/adjustments/record_fields.h"

namespace varnel {

namespace {

constexpr std::array names{
    QLatin1StringView("Projection"),      QLatin1StringView("OutputAOV"),
    QLatin1StringView("EffectVarnel"),    QLatin1StringView("EffectRectilinear"),
    QLatin1StringView("RotateX"),         QLatin1StringView("RotateY"),
    QLatin1StringView("RotateZ"),         QLatin1StringView("TranslateX"),
    QLatin1StringView("TranslateY"),      QLatin1StringView("PaniniD"),
    QLatin1StringView("PaniniSqueeze"),   QLatin1StringView("UnrollStart"),
    QLatin1StringView("UnrollDirection"), QLatin1StringView("UnrollFrom"),
    QLatin1StringView("UnrollTo"),        QLatin1StringView("Pose"),
    QLatin1StringView("Tunnel"),          QLatin1StringView("OutputWidth"),
    QLatin1StringView("OutputHeight"),    QLatin1StringView("CropLeft"),
    QLatin1StringView("CropTop"),         QLatin1StringView("CropWidth"),
    QLatin1StringView("CropHeight"),      QLatin1StringView("Outside"),
    QLatin1StringView("Marks"),           QLatin1StringView("Sampling"),
};

constexpr QLatin1StringView textKey("VarnelAdjustments");
constexpr qsizetype longestText = 10000;  // letters: a whole book may be on the clipboard

PictureSettings Chosen(const PictureSettings& settings) {
    PictureSettings chosen;
    for (const QLatin1StringView name : names) {
        if (const auto setting = settings.constFind(name); setting != settings.constEnd()) {
            chosen.insert(name, *setting);
        }
    }
    return chosen;
}

}  // namespace

QStringList AdjustmentNames() {
    return {names.begin(), names.end()};
}

PictureSettings AdjustmentsOf(const ImageRecord& image) {
    PictureSettings adjustments = Chosen(SettingsFrom(image));
    for (const QLatin1StringView name : names) {
        if (!adjustments.contains(name) &&
            IsOfNewRecord(image, name)) {  // it was not written, and has to undo what is there
            adjustments.insert(name, FieldText(image, name));
        }
    }
    return adjustments;
}

bool GiveAdjustments(const PictureSettings& settings, ImageRecord& image) {
    const PictureSettings chosen = Chosen(settings);
    if (!chosen.isEmpty()) {
        TakeSettings(chosen, image);
    }
    return !chosen.isEmpty();
}

QString AdjustmentsText(const PictureSettings& adjustments) {
    QJsonObject values;
    for (const auto& [name, value] : adjustments.asKeyValueRange()) {
        values.insert(name, value);
    }
    const QJsonObject whole{{textKey, values}};
    return QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Indented));
}

std::optional<PictureSettings> AdjustmentsFromText(const QString& text) {
    if (text.size() > longestText) {
        return std::nullopt;
    }
    const QJsonObject values =
        QJsonDocument::fromJson(text.toUtf8()).object().value(textKey).toObject();
    PictureSettings settings;
    for (auto value = values.begin(); value != values.end(); ++value) {
        settings.insert(value.key(), value->toString());
    }
    const PictureSettings chosen = Chosen(settings);
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen);
}

}  // namespace varnel
