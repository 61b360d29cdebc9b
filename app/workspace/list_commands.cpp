// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Steps back and forth, and the list as a whole: the part of the workspace that minds the history.

#include <algorithm>
#include <utility>

#include "app/workspace/workspace.h"
#include "state/editing/list_order.h"

namespace varnel {

namespace {

// The line on which the photo of an older line is now; -1 when it is gone.
int LineNow(const std::vector<int>& origin, int older) {
    const auto found = std::ranges::find(origin, older);
    return older >= 0 && found != origin.end() ? static_cast<int>(found - origin.begin()) : -1;
}

std::vector<int> LinesNow(const std::vector<int>& origin, const std::vector<int>& older) {
    std::vector<int> lines;
    for (const int line : older) {
        if (const int now = LineNow(origin, line); now >= 0) {
            lines.push_back(now);
        }
    }
    return lines;
}

}  // namespace

void Workspace::TellSteps() {
    for (const auto& then : whenStepsChanged_) {
        then();
    }
}

void Workspace::NoteStep(const QString& name, const StepKey& key, const StepBesides& besides) {
    history_.Note(name, key, besides);
    TellSteps();
}

void Workspace::NoteStep(StepKind kind, const StepBesides& besides) {
    NoteStep(StepName(kind), {}, besides);
}

void Workspace::Absorb() {
    history_.Absorb();
    TellSteps();
}

void Workspace::MarkSaved(const QString& project) {
    NoteStep(StepKind::Other);
    history_.MarkSaved(project);
    TellSteps();
}

void Workspace::MarkWritten(const ImageRecord& image, const QString& file) {
    history_.MarkWritten(image, file);
    TellSteps();
}

// What only rounds the numbers to what the controls show is no step.
void Workspace::NoteStored(const std::vector<int>& lines,
                           const std::vector<ControlValues>& before) {
    for (std::size_t n = 0; n < lines.size(); ++n) {
        const ControlValues after = ValuesFor(state_.Images(lines[n] + 1));
        if (after == before[n]) {
            continue;
        }
        const ControlStep step = StepBetween(before[n], after);
        StepKey key;
        if (step.slider) {
            key = lines;
            key.insert(key.begin(), static_cast<int>(*step.slider));
        }
        NoteStep(step.name, key);
        return;
    }
    Absorb();
}

void Workspace::Undo() {
    Restore(&History::Undo);
}

void Workspace::Redo() {
    Restore(&History::Redo);
}

void Workspace::Restore(std::optional<Restored> (History::*step)()) {
    if (Busy() || state_.loadingControls) {
        return;
    }
    NoteStep(StepKind::Other);
    const ImageRecord shown = Current() != nullptr ? *Current() : ImageRecord();
    if (const std::optional<Restored> restored = (history_.*step)()) {
        ShowRestored(*restored, shown);
        TellSteps();
        if (restored->besides.gear && whenGearRestored_) {
            whenGearRestored_(*restored->besides.gear);
        }
    }
}

void Workspace::ShowRestored(const Restored& restored, const ImageRecord& shown) {
    const int count = state_.Images.UpperBound();
    const int before = view_.CurrentLine();
    int current = before;
    if (restored.origin) {
        current = LineNow(*restored.origin, before);
        if (current >= 0) {
            view_.ShowLines(state_.Images, current,
                            LinesNow(*restored.origin, view_.SelectedLines()));
        }
    } else if (!restored.besides.onAllLines && !restored.changed.empty() &&
               std::ranges::find(restored.changed, before) == restored.changed.end()) {
        current = -1;
    }
    if (count == 0) {
        ShowNewList(0);
    } else if (current < 0) {
        ShowNewList(restored.changed.empty() ? std::clamp(before, 0, count - 1)
                                             : restored.changed.front());
    } else if (!(*Current() == shown)) {
        ShowInControls(*Current());
        Preview();
    }
}

void Workspace::ShowNewList(int line) {
    if (state_.Images.Empty()) {
        state_.bitmaps = {};
        view_.ShowSource(nullptr);
        view_.ShowResult(nullptr);
        view_.ShowStatus({});
        view_.ShowError({});
    }
    view_.ShowList(state_.Images, line);
}

void Workspace::MoveSelected(int target) {
    if (Busy()) {
        return;
    }
    const std::vector<int> selected = view_.SelectedLines();
    const std::vector<int> order = OrderAfterMove(state_.Images.UpperBound(), selected, target);
    if (std::ranges::is_sorted(order)) {
        return;
    }
    const int current = view_.CurrentLine();
    RecordArray<ImageRecord> moved;
    for (const int line : order) {
        moved.Append(std::move(state_.Images(line + 1)));
    }
    state_.Images = std::move(moved);
    view_.ShowLines(state_.Images, LineNow(order, current), LinesNow(order, selected));
    NoteStep(StepKind::Reorder);
}

void Workspace::TakeProject(const RecordArray<ImageRecord>& images, int line,
                            const QString& project) {
    NoteStep(StepKind::Other);
    state_.Images = images;
    const StepKind kind = project.isEmpty() ? StepKind::RestoreList : StepKind::OpenProject;
    history_.NoteProject(StepName(kind), project);
    TellSteps();
    ShowNewList(line);
}

}  // namespace varnel
