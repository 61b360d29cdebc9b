// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/adjustment_commands.h"

#include "state/adjustments/gear_assignment.h"

namespace varnel {

void AdjustmentCommands::StoreControls(bool withPreview) {
    if (model_.state.loadingControls || model_.activity.Saving()) {
        return;
    }
    const std::vector<int> lines = model_.list.SelectedLines();
    std::vector<ControlValues> before;
    for (const int line : lines) {
        ImageRecord& image = model_.list.OnLine(line);
        preparation_.Prepare(image);
        before.push_back(ValuesFor(image));
    }
    model_.steps.Absorb();
    for (const int line : lines) {
        model_.controls.StoreInto(model_.list.OnLine(line));
    }
    model_.controls.NoteStored();
    model_.steps.NoteStored(lines, before);
    ports_.view.HandleEvents();
    if (withPreview) {
        preview_.Preview();
    }
}

void AdjustmentCommands::StoreSteered(StepKind kind, const StepKey& key) {
    ImageRecord* const image = model_.list.Current();
    if (image == nullptr || model_.state.loadingControls || model_.activity.Saving()) {
        return;
    }
    preparation_.Prepare(*image);
    model_.steps.Absorb();
    model_.controls.StoreInto(*image);
    model_.controls.NoteStored();
    model_.steps.Note(kind, {}, key);
}

void AdjustmentCommands::ChooseProjection(Projection projection) {
    model_.controls.ChooseProjection(projection);
    if (const ImageRecord* const image = model_.list.Current()) {
        ImageRecord shown = *image;
        TakeProjection(projection, shown);
        if (shown.OutputAOV != image->OutputAOV) {
            model_.controls.Set(SliderId::AovOutput, static_cast<double>(shown.OutputAOV));
        }
        if (const std::optional<double> effect = ValuesFor(shown).effect) {
            model_.controls.Fill(SliderId::Effect, *effect);
        }
    }
    StoreControls(true);
}

void AdjustmentCommands::PreviewNow() {
    if (model_.activity.Busy() || model_.list.Current() == nullptr) {
        return;
    }
    StoreControls(false);
    if (photo_.RebuildThumbnail()) {
        preview_.Draw(*model_.list.Current());
    } else {
        photo_.ReportNotOpened(*model_.list.Current());
    }
}

void AdjustmentCommands::AdoptTile(const ContactTile& tile) {
    if (model_.activity.Busy() || model_.list.Current() == nullptr) {
        return;
    }
    for (const int line : model_.list.SelectedLines()) {
        ImageRecord& image = model_.list.OnLine(line);
        preparation_.Prepare(image);
        Adopt(tile, image);
    }
    model_.steps.Note(StepKind::ContactSheet);
    model_.ShowInControls(*model_.list.Current());
    preview_.Preview();
}

void AdjustmentCommands::ApplyToAll() {
    if (model_.list.Current() == nullptr) {
        return;
    }
    if (preparation_.PrepareAll()) {
        ApplySettingsToAll(model_.list.Images(), model_.list.CurrentLine() + 1);
        model_.steps.Note(StepKind::SettingsToAll, {.onAllLines = true, .gear = {}});
    }
}

}  // namespace varnel
