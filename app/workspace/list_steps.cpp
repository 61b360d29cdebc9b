// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/list_steps.h"

namespace varnel {

void ListSteps::Note(StepKind kind, const StepBesides& besides, const StepKey& key) {
    history_.Note(StepName(kind), key, besides);
    Q_EMIT Changed();
}

void ListSteps::NoteGears(int addition, const std::vector<GearRecord>& newGears) {
    history_.NoteLate(StepName(StepKind::PhotoGears), {photoGearKey, addition},
                      {.onAllLines = true, .gear = {}, .newGears = newGears});
    Q_EMIT Changed();
}

// What only rounds the numbers to what the controls show is no step.
void ListSteps::NoteStored(const std::vector<int>& lines,
                           const std::vector<ControlValues>& before) {
    for (std::size_t n = 0; n < lines.size(); ++n) {
        const ControlValues after = ValuesFor(list_.OnLine(lines[n]));
        if (after == before[n]) {
            continue;
        }
        const ControlStep step = StepBetween(before[n], after);
        StepKey key;
        if (step.slider) {
            key = lines;
            key.insert(key.begin(), static_cast<int>(*step.slider));
        }
        history_.Note(step.name, key);
        Q_EMIT Changed();
        return;
    }
    Absorb();
}

void ListSteps::NoteProject(const QString& project) {
    const StepKind kind = project.isEmpty() ? StepKind::RestoreList : StepKind::OpenProject;
    history_.NoteProject(StepName(kind), project);
    Q_EMIT Changed();
}

void ListSteps::Absorb() {
    history_.Absorb();
    Q_EMIT Changed();
}

void ListSteps::MarkSaved(const QString& project) {
    Note(StepKind::Other);
    history_.MarkSaved(project);
    Q_EMIT Changed();
}

void ListSteps::MarkWritten(const ImageRecord& image, const QString& file) {
    history_.MarkWritten(image, file);
    Q_EMIT Changed();
}

std::optional<Restored> ListSteps::Told(std::optional<Restored> restored) {
    if (restored) {
        Q_EMIT RecordsRestored();
    }
    return restored;
}

void ListSteps::NotifyRestored(const Restored& restored) {
    Q_EMIT Changed();
    if (restored.besides.gear) {
        Q_EMIT GearRestored(*restored.besides.gear);
    }
    if (!restored.besides.newGears.empty()) {
        Q_EMIT NewGearsRestored(restored.besides.newGears, restored.undone);
    }
}

}  // namespace varnel
