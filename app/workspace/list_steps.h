// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The steps done to the image list, by their names; the code that changes records notes the step
// here before anything is loaded or drawn. Throws nothing but for want of memory.
#pragma once

#include <QObject>
#include <vector>

#include "app/workspace/image_selection.h"
#include "state/adjustments/control_values.h"
#include "state/editing/history.h"
#include "state/editing/step_names.h"

namespace varnel {

class ListSteps : public QObject {
    Q_OBJECT
  public:
    explicit ListSteps(const ImageSelection& list) : list_(list), history_(list.Images()) {}

    // Makes what was changed in the records a step that can be undone; no step where nothing
    // changed. Steps of one key become one step.
    void Note(StepKind kind, const StepBesides& besides = {}, const StepKey& key = {});
    // The same for gears that photos got some time after they were added, by that number.
    void NoteGears(int addition, const std::vector<GearRecord>& newGears);
    // How many steps followed that one; nothing when it cannot be undone.
    std::optional<int> StepsSinceGears(int addition) const {
        return history_.StepsSince({photoGearKey, addition});
    }
    // The same for controls that were stored into the lines, which showed these values before.
    void NoteStored(const std::vector<int>& lines, const std::vector<ControlValues>& before);
    // For the list of a project file; without one it was kept against a crash.
    void NoteProject(const QString& project);
    // What changed is no step of the user.
    void Absorb();
    void Seal() { history_.Seal(); }  // what follows is another step
    // The list as it is was written into the project file.
    void MarkSaved(const QString& project);
    // A picture of a photo with these settings is in the file.
    void MarkWritten(const ImageRecord& image, const QString& file);

    // Nothing when there is no step. The caller shows what was restored and then calls
    // NotifyRestored.
    std::optional<Restored> Undo() { return Told(history_.Undo()); }
    std::optional<Restored> Redo() { return Told(history_.Redo()); }
    void NotifyRestored(const Restored& restored);

    QString UndoName() const { return history_.UndoName(); }
    QString RedoName() const { return history_.RedoName(); }
    const QString& Project() const { return history_.Project(); }
    bool ChangedSinceSaved() const { return history_.ChangedSinceSaved(); }
    int UnsavedPhotos() const { return history_.UnsavedPhotos(); }

  Q_SIGNALS:
    void Changed();
    // A step was undone or done again, and nothing of it is shown yet.
    void RecordsRestored();
    // The gear change that the step undone or done again asks for.
    void GearRestored(const varnel::GearChange& change);
    // The new gears of that step; they go when it was undone.
    void NewGearsRestored(const std::vector<varnel::GearRecord>& gears, bool undone);

  private:
    std::optional<Restored> Told(std::optional<Restored> restored);

    const ImageSelection& list_;
    History history_;
};

}  // namespace varnel
