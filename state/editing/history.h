// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What was done to the image list and its records, to be undone and done again. The history is
// shown the list after each deed and finds out by itself what changed; a step holds the changed
// stretch of lines before and after, and records that did not change are shared. Lines count from
// 0.
#pragma once

#include <QHash>
#include <QString>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "base/record_array.h"
#include "state/editing/gear_circle.h"
#include "state/records/image_record.h"

namespace varnel {

// Moves of one slider over the same lines: the slider's number, then the lines. Empty: by itself.
using StepKey = std::vector<int>;

// What a step did besides changing lines.
struct StepBesides {
    bool onAllLines = false;  // also those that were so already
    std::optional<GearChange> gear;
};

// What an undone step did to the list.
struct Restored {
    std::vector<int> changed;  // lines that are new or other than before
    // When photos came, went or moved: the line on which each line's photo was, -1 for none.
    std::optional<std::vector<int>> origin;
    StepBesides besides;  // the gear's change is still to be done
};

class History {
  public:
    using Images = RecordArray<ImageRecord>;
    static constexpr std::size_t mostSteps = 200;
    static constexpr std::size_t mostLines = 500000;  // of all steps together

    // What changed since the last call becomes a step, if anything did. Steps of one key become one
    // step until the last is sealed. A gear's change is a step by itself.
    void Note(const QString& name, const Images& images, const StepKey& key = {},
              const StepBesides& besides = {});
    // The same for a list that came from another project file. It is saved there; a list without
    // a project is saved nowhere.
    void NoteProject(const QString& name, const Images& images, const QString& project);
    // Takes what changed since the last call for nobody's deed: a photo's size, the gear that a
    // photo gets when it is first looked at. Steps that hold such a record hold the new one then.
    void Absorb(const Images& images);
    void Seal() { sealed_ = true; }

    // Empty when there is nothing.
    QString UndoName() const { return done_.empty() ? QString() : done_.back().name; }
    QString RedoName() const { return undone_.empty() ? QString() : undone_.back().name; }
    // Nothing when there was no step. What is known of the photos' sizes stays.
    std::optional<Restored> Undo(Images& images);
    std::optional<Restored> Redo(Images& images);

    // The project file that the list belongs to; empty for none.
    const QString& Project() const { return project_; }
    // The list as it is stands in the project file.
    void MarkSaved(const QString& project);
    bool ChangedSinceSaved() const;
    // A picture of a photo with these settings is in the file; what was there before is not.
    void MarkWritten(const ImageRecord& image, const QString& file);
    // The photos adjusted by hand whose adjustments are neither in the project file nor in a
    // picture.
    int UnsavedPhotos() const;

  private:
    using Shared = std::shared_ptr<const ImageRecord>;
    using Run = std::vector<Shared>;
    struct Step {
        QString name;
        StepKey key;
        std::size_t first = 0;  // line
        Run before, after;
        std::optional<std::pair<QString, QString>> projects;  // before and after
        StepBesides besides;
        std::size_t Lines() const { return before.size() + after.size(); }
    };

    static Run SharedWith(const Run& known, const Images& images);
    static Step Between(const Run& before, const Run& after);
    bool MovedPhotos(const Run& run) const;
    void Push(Step step);
    void Replace(const Run& older, const Run& newer);
    Restored Apply(const Step& step, const Run& gone, const Run& come, Images& images);
    void Take(const Restored& restored, Images& images);

    Run known_;
    Run saved_;
    Run stored_;  // as the photos came, though the controls were stored into them
    QHash<QString, Shared> written_;  // the record that each written picture was made with
    std::deque<Step> done_;
    std::vector<Step> undone_;
    QString project_;
    bool sealed_ = false;
};

}  // namespace varnel
