// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/step_names.h"

#include <QCoreApplication>
#include <array>

namespace varnel {

namespace {

#define TEXT(text) QT_TRANSLATE_NOOP("Steps", text)

constexpr std::array names{TEXT("projection"),
                           TEXT("choice of gear"),
                           TEXT("apply gear to all"),
                           TEXT("apply settings to all"),
                           TEXT("adjustments"),
                           TEXT("add images"),
                           TEXT("remove images"),
                           TEXT("reorder images"),
                           TEXT("add images with settings"),
                           TEXT("level"),
                           TEXT("frame"),
                           TEXT("image circle"),
                           TEXT("contact sheet"),
                           TEXT("open project"),
                           TEXT("change")};
static_assert(names.size() == static_cast<std::size_t>(StepKind::Other) + 1);

QString Translated(const char* text) {
    return QCoreApplication::translate("Steps", text);
}

// The group that tells the two sliders of one caption apart.
QString GroupOf(SliderId slider) {
    switch (slider) {
        case SliderId::X:
        case SliderId::Y:
        case SliderId::Z:
            return Translated(TEXT("rotate %1"));
        case SliderId::XTranslate:
        case SliderId::YTranslate:
            return Translated(TEXT("transpose %1"));
        case SliderId::AovOutput:
        case SliderId::Effect:
        case SliderId::AovInput:
            break;
    }
    return QStringLiteral("%1");
}

#undef TEXT

// As it reads within a sentence: "Left/Right" becomes "left/right", "AOV" and "Z-axis" stay.
QString Running(QString caption) {
    for (qsizetype n = 0; n + 1 < caption.size(); ++n) {
        if (caption[n].isUpper() && caption[n + 1].isLower()) {
            caption[n] = caption[n].toLower();
        }
    }
    return caption;
}

}  // namespace

QString StepName(StepKind kind) {
    return Translated(names[static_cast<std::size_t>(kind)]);
}

QString StepName(SliderId slider) {
    for (const SliderRowData& row : SliderRows()) {
        if (row.id == slider) {
            const char* const caption = row.heading != nullptr ? row.heading : row.startCaption;
            return GroupOf(slider).arg(Running(QCoreApplication::translate("Sliders", caption)));
        }
    }
    return {};
}

ControlStep StepBetween(const ControlValues& before, const ControlValues& after) {
    if (before.projection != after.projection) {  // its effect comes with it
        return {StepName(StepKind::Projection), std::nullopt};
    }
    std::optional<SliderId> moved;
    for (const SliderRowData& row : SliderRows()) {
        if (ValueOf(row.id, before) != ValueOf(row.id, after)) {
            if (moved) {
                return {StepName(StepKind::Adjustments), std::nullopt};
            }
            moved = row.id;
        }
    }
    return {moved ? StepName(*moved) : StepName(StepKind::Adjustments), moved};
}

}  // namespace varnel
