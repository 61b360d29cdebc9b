// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/projection_info.h"

#include <QCoreApplication>
#include <algorithm>

namespace varnel {

std::vector<Projection> AllProjections() {
    std::vector<Projection> all;
    for (const ProjectionInfo& row : ProjectionRows()) {
        all.push_back(row.id);
    }
    return all;
}

std::vector<Projection> BasicProjections() {
    std::vector<Projection> basic;
    for (const ProjectionInfo& row : ProjectionRows()) {
        if (row.basic) {
            basic.push_back(row.id);
        }
    }
    return basic;
}

const ProjectionInfo& InfoOf(Projection projection) {
    return ProjectionRows()[static_cast<std::size_t>(projection)];
}

QString ToText(Projection projection) {
    return QString::fromUtf16(InfoOf(projection).name);
}

QString KeyOf(Projection projection) {
    return QString::fromUtf16(InfoOf(projection).key);
}

QString TitleOf(Projection projection) {
    return QCoreApplication::translate("Projections", InfoOf(projection).title);
}

std::optional<Projection> ProjectionFromText(QStringView text) {
    for (const ProjectionInfo& row : ProjectionRows()) {
        if (text.compare(QStringView(row.key), Qt::CaseInsensitive) == 0 ||
            text.compare(QStringView(row.name), Qt::CaseInsensitive) == 0) {
            return row.id;
        }
    }
    return std::nullopt;
}

Projection ProjectionFromIndex(int index) {
    const auto rows = ProjectionRows();
    return index >= 0 && index < static_cast<int>(rows.size())
               ? rows[static_cast<std::size_t>(index)].id
               : Projection::Horizon;
}

QString TipOf(Projection projection) {
    return QCoreApplication::translate("Projections", InfoOf(projection).tip);
}

const ControlUse* UseOf(Projection projection, SliderId id) {
    const auto controls = InfoOf(projection).controls;
    const auto use = std::ranges::find(controls, id, &ControlUse::id);
    return use == controls.end() ? nullptr : &*use;
}

std::optional<float> CutAngleOf(Projection projection, const ImageRecord& image) {
    const auto widest = InfoOf(projection).Widest;
    if (widest == nullptr || !(image.OutputAOV > widest(image))) {
        return std::nullopt;
    }
    return widest(image);
}

bool ReadsChoice(Projection projection, ChoiceId id) {
    return std::ranges::find(InfoOf(projection).choices, id) != InfoOf(projection).choices.end();
}

std::optional<float ImageRecord::*> EffectReadBy(Projection projection) {
    float ImageRecord::*const effect = InfoOf(projection).effect;
    return effect == nullptr ? std::nullopt : std::optional(effect);
}

}  // namespace varnel
