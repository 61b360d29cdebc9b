// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What was done to the image list and its records, to be undone and done again. The history looks
// at its list after each change and finds out by itself what changed; a step holds the changed
// stretch of lines before and after, and records that did not change are shared. The order of the
// steps and the merging of slider moves are the undo stack's. Lines count from 0. Throws nothing
// but for want of memory.
#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "base/record_array.h"
#include "state/adjustments/slider_table.h"
#include "state/editing/gear_circle.h"
#include "state/editing/list_run.h"
#include "state/records/image_record.h"

class QUndoStack;

namespace varnel {

// Moves of one slider, or of the circle, over the same lines: the slider's number, or circleKey,
// then the lines. Empty: by itself.
using StepKey = std::vector<int>;
inline constexpr int circleKey = static_cast<int>(SliderId::AovInput) + 1;  // no slider's
// The gears of photos that were added together: this and the number of the addition.
inline constexpr int photoGearKey = circleKey + 1;
// A burst of turns of the wheel or of keys on the result: this, the kind of the step and the line.
inline constexpr int steerKey = photoGearKey + 1;
inline constexpr int facesKey = steerKey + 1;  // this and the line

// What a step did besides changing lines.
struct StepBesides {
    bool onAllLines = false;  // also those that were so already
    std::optional<GearChange> gear;
    std::vector<GearRecord> newGears = {};  // that came into the table
};

// What an undone step did to the list.
struct Restored {
    std::vector<int> changed;  // lines that are new or other than before
    // When photos came, went or moved: the line on which each line's photo was, -1 for none.
    std::optional<std::vector<int>> origin;
    StepBesides besides;  // the gear's change is still to be done, and that of the table
    bool undone = false;  // the new gears go; otherwise they come again
};

class History {
  public:
    using Images = RecordArray<ImageRecord>;
    static constexpr int mostSteps = 200;
    static constexpr std::size_t mostLines = 500000;  // of all steps together

    // Of this list, which must outlive it.
    explicit History(Images& images);
    ~History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    // What changed since the last call becomes a step, if anything did. Steps of one key become one
    // step until the last is sealed. A gear's change is a step by itself.
    void Note(const QString& name, const StepKey& key = {}, const StepBesides& besides = {});
    // The same for what belongs to the step of that key, though others may have followed, which
    // changed other photos: it is undone with it. Without such a step that can be undone it becomes
    // one. Records that count as adjusted by it were not adjusted by hand.
    void NoteLate(const QString& name, const StepKey& key, const StepBesides& besides);
    // How many steps can be undone before the one of that key; nothing when there is none.
    std::optional<int> StepsSince(const StepKey& key) const;
    // The same for a list that came from another project file. It is saved there; a list without
    // a project is saved nowhere.
    void NoteProject(const QString& name, const QString& project);
    // Takes what changed since the last call for no step of the user: a photo's size, the gear that
    // a photo gets when it is first looked at. Steps that hold such a record hold the new one then.
    void Absorb();
    void Seal() { sealed_ = true; }

    // Empty when there is nothing.
    QString UndoName() const;
    QString RedoName() const;
    // Nothing when there was no step. What is known of the photos' sizes stays.
    std::optional<Restored> Undo();
    std::optional<Restored> Redo();

    // The project file that the list belongs to; empty for none.
    const QString& Project() const { return project_; }
    // The list as it is stands in the project file.
    void MarkSaved(const QString& project);
    // False again, too, when a change was taken back by hand.
    bool ChangedSinceSaved() const;
    // A picture of a photo with these settings is in the file; what was there before is not.
    void MarkWritten(const ImageRecord& image, const QString& file);
    // The photos adjusted by hand whose adjustments are neither in the project file nor in a
    // picture.
    int UnsavedPhotos() const;

  private:
    class Step;
    struct StepContent;

    StepContent& Content(int step) const;
    bool CanUndo() const;
    void Push(const QString& name, StepContent content);
    bool Join(StepContent& last, const StepContent& next);
    void BoundLines();
    using Replacements = std::unordered_map<const ImageRecord*, SharedRecord>;
    Replacements Replaced(const ListRun& older, const ListRun& newer);
    // In the lists and in the steps from that one on.
    void Replace(const Replacements& instead, int firstStep);
    RunChange ChangeWith(const Replacements& instead, int step) const;
    Restored Apply(std::size_t first, const ListRun& gone, const ListRun& come);
    void Take(const Restored& restored);

    Images& images_;
    std::unique_ptr<QUndoStack> stack_;
    std::optional<Restored> restored_;  // by the step that is being undone or done again
    ListRun known_;
    ListRun saved_;
    ListRun stored_;  // as the photos came, though the controls were stored into them
    QHash<QString, SharedRecord> written_;  // the record that each written picture was made with
    QString project_;
    bool sealed_ = false;
};

}  // namespace varnel
