// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/history.h"

#include <QMultiHash>
#include <QUndoStack>
#include <algorithm>
#include <utility>

#include "state/adjustments/gear_assignment.h"
#include "state/editing/step_names.h"

namespace varnel {

namespace {

// A step keeps no older size of a photo than the one that the list has.
void KeepSize(const ImageRecord& now, ImageRecord& restored) {
    if (now.Width == 0 || restored.Width == 0) {
        return;
    }
    TurnCentre(restored, now.Orientation);
    restored.Width = now.Width;
    restored.Height = now.Height;
    restored.Landscape = now.Landscape;
    restored.Orientation = now.Orientation;
}

template <class Records>
void ReplaceIn(Records& records,
               const std::unordered_map<const ImageRecord*, SharedRecord>& instead) {
    for (SharedRecord& record : records) {
        if (const auto found = instead.find(record.get()); found != instead.end()) {
            record = found->second;
        }
    }
}

}  // namespace

struct History::StepContent {
    StepKey key = {};
    RunChange change = {};
    StepBesides besides = {};
    std::optional<std::pair<QString, QString>> projects = {};  // before and after
    bool forgotten = false;                                    // too old: there were too many lines

    std::size_t Lines() const { return change.before.size() + change.after.size(); }
    bool Empty() const { return Lines() == 0 && !besides.gear && !projects; }
};

// The stack hands its commands out as constants; what they hold changes when a photo's size is
// found, so it is kept aside.
class History::Step : public QUndoCommand {
  public:
    Step(History& history, const QString& name, StepContent content)
        : QUndoCommand(name),
          history_(history),
          content_(std::make_unique<StepContent>(std::move(content))) {}

    StepContent& Content() const { return *content_; }
    int id() const override { return content_->key.empty() ? -1 : content_->key.front(); }

    bool mergeWith(const QUndoCommand* next) override {
        if (!history_.Join(*content_, static_cast<const Step*>(next)->Content())) {
            return false;
        }
        setObsolete(content_->Empty());
        return true;
    }

    void undo() override {
        if (content_->projects) {
            history_.project_ = content_->projects->first;
        }
        Restored restored =
            history_.Apply(content_->change.first, content_->change.after, content_->change.before);
        restored.besides = content_->besides;
        restored.undone = true;
        if (restored.besides.gear) {
            std::swap(restored.besides.gear->from, restored.besides.gear->to);
        }
        history_.restored_ = std::move(restored);
    }

    // Also called when the stack gets the step, which is done by then.
    void redo() override {
        if (!std::exchange(done_, true)) {
            return;
        }
        if (content_->projects) {
            history_.project_ = content_->projects->second;
        }
        Restored restored =
            history_.Apply(content_->change.first, content_->change.before, content_->change.after);
        restored.besides = content_->besides;
        history_.restored_ = std::move(restored);
    }

  private:
    History& history_;
    std::unique_ptr<StepContent> content_;
    bool done_ = false;
};

History::History(Images& images) : images_(images), stack_(std::make_unique<QUndoStack>()) {
    stack_->setUndoLimit(mostSteps);
}

History::~History() = default;

History::StepContent& History::Content(int step) const {
    return static_cast<const Step*>(stack_->command(step))->Content();
}

void History::Note(const QString& name, const StepKey& key, const StepBesides& besides) {
    ListRun now = SharedWith(known_, images_);
    if (now == known_ && !besides.gear) {
        return;
    }
    const ListRun before = std::exchange(known_, std::move(now));
    Push(name, {.key = key, .change = ChangeBetween(before, known_), .besides = besides});
}

void History::NoteProject(const QString& name, const QString& project) {
    const RunChange change = ChangeBetween(known_, SharedWith({}, images_));
    known_ = Spliced(known_, change.first, change.before.size(), change.after);
    Push(name, {.change = change, .projects = {{project_, project}}});
    MarkSaved(project);
    if (project.isEmpty()) {
        saved_.clear();
        stack_->resetClean();
    }
}

void History::Push(const QString& name, StepContent content) {
    stack_->push(new Step(*this, name, std::move(content)));
    sealed_ = false;
    BoundLines();
}

// Called by the stack for steps of one slider.
bool History::Join(StepContent& last, const StepContent& next) {
    if (sealed_ || last.key != next.key) {
        return false;
    }
    const ListRun between =
        Spliced(known_, next.change.first, next.change.after.size(), next.change.before);
    const ListRun before =
        Spliced(between, last.change.first, last.change.after.size(), last.change.before);
    known_ = SharedWith(before, images_);  // moved there and back: the record that it was
    last.change = ChangeBetween(before, known_);
    return true;
}

// The stack bounds the number of steps; their lines it does not know.
void History::BoundLines() {
    std::size_t lines = 0;
    for (int step = stack_->index(); step-- > 0;) {
        StepContent& content = Content(step);
        lines += content.Lines();
        if (lines > mostLines && step < stack_->index() - 1) {
            content = {.forgotten = true};
        }
    }
}

void History::Absorb() {
    const ListRun now = SharedWith(known_, images_);
    if (now.size() != known_.size() || !SamePhotos(now, known_)) {
        Note(StepName(StepKind::Other));
        return;
    }
    Replace(Replaced(known_, now), 0);
}

void History::NoteLate(const QString& name, const StepKey& key, const StepBesides& besides) {
    const ListRun now = SharedWith(known_, images_);
    const bool isSame = now.size() == known_.size() && SamePhotos(now, known_);
    const Replacements instead = isSame ? Replaced(known_, now) : Replacements();
    const std::optional<int> since = StepsSince(key);
    if (!since || !isSame) {
        Note(name, key, besides);
        return;
    }
    const int step = stack_->index() - 1 - *since;
    Content(step).change = ChangeWith(instead, step);
    std::vector<GearRecord>& gears = Content(step).besides.newGears;
    gears.insert(gears.end(), besides.newGears.begin(), besides.newGears.end());
    Replace(instead, step + 1);
}

std::optional<int> History::StepsSince(const StepKey& key) const {
    for (int step = stack_->index() - 1; step >= 0; --step) {
        if (Content(step).key == key) {
            return stack_->index() - 1 - step;
        }
    }
    return std::nullopt;
}

// What the step changes when it makes these of the records that it left.
RunChange History::ChangeWith(const Replacements& instead, int step) const {
    ListRun after = known_;
    for (int later = stack_->index() - 1; later > step; --later) {
        const RunChange& change = Content(later).change;
        after = Spliced(after, change.first, change.after.size(), change.before);
    }
    const RunChange& change = Content(step).change;
    const ListRun before = Spliced(after, change.first, change.after.size(), change.before);
    ReplaceIn(after, instead);
    return ChangeBetween(before, after);
}

History::Replacements History::Replaced(const ListRun& older, const ListRun& newer) {
    Replacements instead;
    for (std::size_t n = 0; n < older.size(); ++n) {
        if (older[n] != newer[n]) {
            instead.emplace(older[n].get(), newer[n]);
            if (!older[n]->SettingsApplied && newer[n]->SettingsApplied) {
                stored_.push_back(newer[n]);
            }
        }
    }
    return instead;
}

void History::Replace(const Replacements& instead, int firstStep) {
    if (instead.empty()) {
        return;
    }
    ReplaceIn(known_, instead);
    if (firstStep == 0) {
        ReplaceIn(saved_, instead);
        ReplaceIn(written_, instead);
    }
    ReplaceIn(stored_, instead);
    for (int step = firstStep; step < stack_->count(); ++step) {
        ReplaceIn(Content(step).change.before, instead);
        ReplaceIn(Content(step).change.after, instead);
    }
}

bool History::CanUndo() const {
    return stack_->canUndo() && !Content(stack_->index() - 1).forgotten;
}

QString History::UndoName() const {
    return CanUndo() ? stack_->undoText() : QString();
}

QString History::RedoName() const {
    return stack_->redoText();
}

std::optional<Restored> History::Undo() {
    if (CanUndo()) {
        stack_->undo();
    }
    return std::exchange(restored_, std::nullopt);
}

std::optional<Restored> History::Redo() {
    stack_->redo();
    return std::exchange(restored_, std::nullopt);
}

// Puts lines in the place of others that go.
Restored History::Apply(std::size_t first, const ListRun& gone, const ListRun& come) {
    const ListRun before = std::exchange(known_, Spliced(known_, first, gone.size(), come));
    Restored restored;
    for (std::size_t n = 0; n < come.size(); ++n) {
        if (gone.size() != come.size() || gone[n] != come[n]) {
            restored.changed.push_back(static_cast<int>(first + n));
        }
    }
    if (!SamePhotos(before, known_)) {
        restored.origin = OriginOf(before, known_);
    }
    Take(restored);
    sealed_ = true;
    return restored;
}

// Fills the list from what is known now.
void History::Take(const Restored& restored) {
    Images filled;
    for (std::size_t n = 0; n < known_.size(); ++n) {
        const int from = restored.origin ? (*restored.origin)[n] : static_cast<int>(n);
        ImageRecord image = *known_[n];
        if (from >= 0) {
            KeepSize(images_(from + 1), image);
        }
        filled.Append(std::move(image));
    }
    images_ = std::move(filled);
    Absorb();
}

// The stack's clean state alone would call a list changed in which a change was taken back by hand.
bool History::ChangedSinceSaved() const {
    return !stack_->isClean() &&
           !std::ranges::equal(known_, saved_, [](const SharedRecord& a, const SharedRecord& b) {
               return a == b || *a == *b;
           });
}

void History::MarkWritten(const ImageRecord& image, const QString& file) {
    const auto same = std::ranges::find_if(known_, [&image](const SharedRecord& record) {
        return record->FileName == image.FileName && *record == image;
    });
    written_.insert(file,
                    same != known_.end() ? *same : std::make_shared<const ImageRecord>(image));
}

int History::UnsavedPhotos() const {
    QMultiHash<QString, const ImageRecord*> safe;  // of each file name
    const auto insert = [&safe](const auto& records) {
        for (const SharedRecord& record : records) {
            safe.insert(record->FileName, record.get());
        }
    };
    insert(saved_);
    insert(stored_);
    insert(written_);
    const auto unsaved = [&safe](const SharedRecord& record) {
        const auto [first, last] = std::as_const(safe).equal_range(record->FileName);
        return record->SettingsApplied &&
               std::none_of(first, last, [&record](const ImageRecord* other) {
                   return other == record.get() || *other == *record;
               });
    };
    return static_cast<int>(std::ranges::count_if(known_, unsaved));
}

void History::MarkSaved(const QString& project) {
    project_ = project;
    saved_ = known_;
    stack_->setClean();
    sealed_ = true;
}

}  // namespace varnel
