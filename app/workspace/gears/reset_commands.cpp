// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/gears/reset_commands.h"

#include <algorithm>

#include "remap/projection/projection_info.h"
#include "state/adjustments/choice_table.h"
#include "state/adjustments/gear_assignment.h"
#include "state/adjustments/usual_values.h"

namespace varnel {

bool ResetCommands::MayChange() const {
    return workspace_.model.list.Current() != nullptr && !workspace_.model.activity.Busy();
}

bool ResetCommands::IsUnusual(SliderId slider) const {
    const ImageRecord* const image = workspace_.model.list.Current();
    return image != nullptr && HasGearNumbers(*image) &&
           varnel::IsUnusual(slider, *image, UsualRecord(*image, workspace_.model.state.Gear));
}

bool ResetCommands::HasUnusualChoice() const {
    const ImageRecord* const image = workspace_.model.list.Current();
    const auto isUnusual = [image](ChoiceId choice) {
        const ChoiceRowData& row = ChoiceRowOf(choice);
        return row.Of(*image) != row.Of(ImageRecord());
    };
    return image != nullptr &&
           std::ranges::any_of(ChoicesOf(ProjectionFromIndex(image->Projection)), isUnusual);
}

void ResetCommands::Reset(SliderId slider) {
    if (!MayChange()) {
        return;
    }
    WorkspaceModel& model = workspace_.model;
    const std::vector<int> lines = model.list.SelectedLines();
    std::vector<ControlValues> before;
    for (const int line : lines) {
        ImageRecord& image = model.list.OnLine(line);
        workspace_.preparation.Prepare(image);
        before.push_back(ValuesFor(image));
    }
    model.steps.Absorb();
    for (const int line : lines) {
        ImageRecord& image = model.list.OnLine(line);
        TakeUsual(slider, UsualRecord(image, model.state.Gear), image);
        image.SettingsApplied = true;
    }
    model.steps.Seal();
    model.steps.NoteStored(lines, before);
    model.steps.Seal();
    ShowCurrent();
}

void ResetCommands::ResetPhoto() {
    if (!MayChange()) {
        return;
    }
    workspace_.preparation.PreparedCurrent();
    WorkspaceModel& model = workspace_.model;
    model.steps.Absorb();
    ImageRecord& image = *model.list.Current();
    image = UsualRecord(image, model.state.Gear);
    image.SettingsApplied = true;
    model.steps.Note(StepKind::Reset);
    ShowCurrent();
}

void ResetCommands::ShowCurrent() {
    workspace_.model.ShowInControls(*workspace_.model.list.Current());
    workspace_.preview.Preview();
}

}  // namespace varnel
