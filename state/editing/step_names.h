// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The names of the steps that can be undone, in one table: the texts follow "Undo" and "Redo".
// Throws nothing.
#pragma once

#include <QString>
#include <optional>

#include "state/adjustments/slider_table.h"

namespace varnel {

enum class StepKind {
    Projection,
    Gear,
    GearToAll,
    GearNumbers,  // of a gear that was redefined
    SettingsToAll,
    Adjustments,  // several controls at once
    Add,
    Remove,
    Reorder,
    DroppedSettings,
    Level,
    Frame,
    Circle,
    Faces,
    PhotoGears,  // of photos that were added
    Straighten,
    Reset,  // a photo to what its gear gives
    ContactSheet,
    Turn,  // the camera, by hand on the result
    Roll,
    AngleOfView,
    Centre,  // a point of the result
    PasteSettings,
    Preset,
    OpenProject,
    RestoreList,
    Size,
    Crop,
    Outside,
    Keys,      // of a film
    FilmPart,  // that is converted
    Other
};

QString StepName(StepKind kind);
// "rotate left/right": the slider's own caption, led by its group's name where there are two.
QString StepName(SliderId slider);

struct ControlStep {
    QString name;
    std::optional<SliderId> slider;  // when one slider alone was moved
};

// The step that changed the controls of a photo from one state to the other.
ControlStep StepBetween(const ControlValues& before, const ControlValues& after);

}  // namespace varnel
