// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/presets/preset_commands.h"

#include "pipeline/output/preset_output.h"
#include "state/adjustments/adjustment_set.h"

namespace varnel {

bool PresetCommands::HasPhoto() const {
    return !model_.activity.Busy() && model_.list.Current() != nullptr;
}

QString PresetCommands::Copy() {
    return HasPhoto() ? AdjustmentsText(AdjustmentsOf(workspace_.preparation.PreparedCurrent()))
                      : QString();
}

bool PresetCommands::Paste(const QString& text) {
    const std::optional<PictureSettings> adjustments = AdjustmentsFromText(text);
    if (adjustments && HasPhoto()) {
        Give(*adjustments, StepKind::PasteSettings);
    }
    return adjustments.has_value();
}

bool PresetCommands::Apply(const Preset& preset) {
    if (HasPhoto()) {
        Give(preset.settings, StepKind::Preset);
    }
    return TakeOutput(preset.settings, model_.state.settings);
}

// Gears first: their defaults must not come over what is given, and are no step of the user.
void PresetCommands::Give(const PictureSettings& adjustments, StepKind kind) {
    const std::vector<int> lines = model_.list.SelectedLines();
    for (const int line : lines) {
        workspace_.preparation.Prepare(model_.list.OnLine(line));
    }
    model_.steps.Absorb();
    for (const int line : lines) {
        GiveAdjustments(adjustments, model_.list.OnLine(line));
    }
    model_.steps.Note(kind);
    model_.ShowInControls(*model_.list.Current());
    workspace_.preview.Preview();
}

}  // namespace varnel
