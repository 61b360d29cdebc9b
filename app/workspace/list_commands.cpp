// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/list_commands.h"

#include <algorithm>
#include <utility>

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

void ListCommands::Undo() {
    Restore(&ListSteps::Undo);
}

void ListCommands::Redo() {
    Restore(&ListSteps::Redo);
}

void ListCommands::Restore(std::optional<Restored> (ListSteps::*step)()) {
    if (model_.activity.Busy() || model_.state.loadingControls) {
        return;
    }
    model_.steps.Note(StepKind::Other);
    const ImageRecord* const current = model_.list.Current();
    const ImageRecord shown = current != nullptr ? *current : ImageRecord();
    if (const std::optional<Restored> restored = (model_.steps.*step)()) {
        ShowRestored(*restored, shown);
        model_.steps.NotifyRestored(*restored);
    }
}

void ListCommands::ShowRestored(const Restored& restored, const ImageRecord& shown) {
    const int count = model_.list.Images().UpperBound();
    const int before = model_.list.CurrentLine();
    int current = before;
    if (restored.origin) {
        current = LineNow(*restored.origin, before);
        if (current >= 0) {
            model_.list.Rearrange(current, LinesNow(*restored.origin, model_.list.SelectedLines()));
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
    } else if (!(*model_.list.Current() == shown)) {
        model_.ShowInControls(*model_.list.Current());
        preview_.Preview();
    }
}

void ListCommands::ShowNewList(int line) {
    if (model_.list.Images().Empty()) {
        model_.state.bitmaps = {};
        ports_.view.ShowSource(nullptr);
        ports_.view.ShowResult(nullptr);
        ports_.view.ShowStatus({});
        ports_.view.ShowError({});
    }
    photo_.ShowList(line);
}

void ListCommands::RemoveSelected() {
    Remove(model_.list.SelectedLines(), 0);
}

void ListCommands::Remove(const std::vector<int>& lines, int shown) {
    RecordArray<ImageRecord> kept;
    std::size_t next = 0;
    for (int line = 0; line < model_.list.Images().UpperBound(); ++line) {
        if (next < lines.size() && lines[next] == line) {
            ++next;
        } else {
            kept.Append(std::move(model_.list.OnLine(line)));
        }
    }
    model_.list.Images() = std::move(kept);
    model_.steps.Note(StepKind::Remove);
    ShowNewList(shown);
}

void ListCommands::MoveSelected(int target) {
    if (model_.activity.Busy()) {
        return;
    }
    const std::vector<int> selected = model_.list.SelectedLines();
    const std::vector<int> order =
        OrderAfterMove(model_.list.Images().UpperBound(), selected, target);
    if (std::ranges::is_sorted(order)) {
        return;
    }
    const int current = model_.list.CurrentLine();
    RecordArray<ImageRecord> moved;
    for (const int line : order) {
        moved.Append(std::move(model_.list.OnLine(line)));
    }
    model_.list.Images() = std::move(moved);
    model_.list.Rearrange(LineNow(order, current), LinesNow(order, selected));
    model_.steps.Note(StepKind::Reorder);
}

int ListCommands::AddToBatchQueue() {
    RecordArray<ImageRecord>& queue = model_.state.BatchQueue;
    if (preparation_.PrepareAll()) {
        for (const ImageRecord& image : model_.list.Images()) {
            queue.Append(image);
        }
    }
    return queue.UpperBound();
}

void ListCommands::TakeProject(const RecordArray<ImageRecord>& images, int line,
                               const QString& project) {
    model_.steps.Note(StepKind::Other);
    model_.list.Images() = images;
    model_.steps.NoteProject(project);
    ShowNewList(line);
}

}  // namespace varnel
