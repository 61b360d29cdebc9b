// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/step_names.h"

#include <QCoreApplication>
#include <array>

namespace varnel {

namespace {

constexpr std::array names{QT_TRANSLATE_NOOP("Steps", "projection"),
                           QT_TRANSLATE_NOOP("Steps", "choice of gear"),
                           QT_TRANSLATE_NOOP("Steps", "apply gear to all"),
                           QT_TRANSLATE_NOOP("Steps", "new numbers of a gear"),
                           QT_TRANSLATE_NOOP("Steps", "apply settings to all"),
                           QT_TRANSLATE_NOOP("Steps", "adjustments"),
                           QT_TRANSLATE_NOOP("Steps", "add images"),
                           QT_TRANSLATE_NOOP("Steps", "remove images"),
                           QT_TRANSLATE_NOOP("Steps", "reorder images"),
                           QT_TRANSLATE_NOOP("Steps", "add images with settings"),
                           QT_TRANSLATE_NOOP("Steps", "level"),
                           QT_TRANSLATE_NOOP("Steps", "frame"),
                           QT_TRANSLATE_NOOP("Steps", "image circle"),
                           QT_TRANSLATE_NOOP("Steps", "soften faces"),
                           QT_TRANSLATE_NOOP("Steps", "gears of the photos"),
                           QT_TRANSLATE_NOOP("Steps", "straighten"),
                           QT_TRANSLATE_NOOP("Steps", "reset photo"),
                           QT_TRANSLATE_NOOP("Steps", "contact sheet"),
                           QT_TRANSLATE_NOOP("Steps", "turn of the camera"),
                           QT_TRANSLATE_NOOP("Steps", "roll of the camera"),
                           QT_TRANSLATE_NOOP("Steps", "angle of view"),
                           QT_TRANSLATE_NOOP("Steps", "centring"),
                           QT_TRANSLATE_NOOP("Steps", "paste settings"),
                           QT_TRANSLATE_NOOP("Steps", "preset"),
                           QT_TRANSLATE_NOOP("Steps", "open project"),
                           QT_TRANSLATE_NOOP("Steps", "open the list again"),
                           QT_TRANSLATE_NOOP("Steps", "size"),
                           QT_TRANSLATE_NOOP("Steps", "crop"),
                           QT_TRANSLATE_NOOP("Steps", "outside"),
                           QT_TRANSLATE_NOOP("Steps", "keys of the film"),
                           QT_TRANSLATE_NOOP("Steps", "part of the film"),
                           QT_TRANSLATE_NOOP("Steps", "change")};
static_assert(names.size() == static_cast<std::size_t>(StepKind::Other) + 1);

// The sliders' steps as they read within a sentence, in the order of the sliders' names.
constexpr std::array sliderNames{QT_TRANSLATE_NOOP("Steps", "output AOV"),
                                 QT_TRANSLATE_NOOP("Steps", "partial effect"),
                                 QT_TRANSLATE_NOOP("Steps", "rotate up/down"),
                                 QT_TRANSLATE_NOOP("Steps", "rotate left/right"),
                                 QT_TRANSLATE_NOOP("Steps", "rotate Z-axis"),
                                 QT_TRANSLATE_NOOP("Steps", "transpose left/right"),
                                 QT_TRANSLATE_NOOP("Steps", "transpose up/down"),
                                 QT_TRANSLATE_NOOP("Steps", "input hAOV"),
                                 QT_TRANSLATE_NOOP("Steps", "distance of the eye"),
                                 QT_TRANSLATE_NOOP("Steps", "vertical squeeze"),
                                 QT_TRANSLATE_NOOP("Steps", "start of unrolling"),
                                 QT_TRANSLATE_NOOP("Steps", "first angle of unrolling"),
                                 QT_TRANSLATE_NOOP("Steps", "last angle of unrolling")};
static_assert(sliderNames.size() == sliderCount);

// The same for the choices.
constexpr std::array choiceNames{
    QT_TRANSLATE_NOOP("Steps", "direction of unrolling"), QT_TRANSLATE_NOOP("Steps", "marks"),
    QT_TRANSLATE_NOOP("Steps", "pose of the camera"), QT_TRANSLATE_NOOP("Steps", "tunnel")};
static_assert(choiceNames.size() == choiceCount);

QString Translated(const char* text) {
    return QCoreApplication::translate("Steps", text);
}

}  // namespace

QString StepName(StepKind kind) {
    return Translated(names[static_cast<std::size_t>(kind)]);
}

QString StepName(SliderId slider) {
    return Translated(sliderNames[static_cast<std::size_t>(slider)]);
}

ControlStep StepBetween(const ControlValues& before, const ControlValues& after) {
    if (before.projection != after.projection) {  // its effect comes with it
        return {StepName(StepKind::Projection), std::nullopt};
    }
    std::optional<SliderId> moved;
    int changes = 0;
    QString name = StepName(StepKind::Adjustments);
    for (const SliderRowData& row : SliderRows()) {
        if (ValueOf(row.id, before) != ValueOf(row.id, after)) {
            moved = row.id;
            name = StepName(row.id);
            ++changes;
        }
    }
    for (std::size_t choice = 0; choice < choiceCount; ++choice) {
        if (before.choices[choice] != after.choices[choice]) {
            name = Translated(choiceNames[choice]);
            ++changes;
        }
    }
    return changes > 1 ? ControlStep{StepName(StepKind::Adjustments), std::nullopt}
                       : ControlStep{name, moved};
}

}  // namespace varnel
