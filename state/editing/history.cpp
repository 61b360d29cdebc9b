// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/history.h"

#include <QMultiHash>
#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "state/adjustments/gear_assignment.h"
#include "state/editing/step_names.h"

namespace varnel {

namespace {

// How many lines at the beginning and at the end of two lists are the same.
template <class A, class B, class Same>
std::pair<std::size_t, std::size_t> SameEnds(const A& a, std::size_t sizeA, const B& b,
                                             std::size_t sizeB, Same same) {
    const std::size_t most = std::min(sizeA, sizeB);
    std::size_t head = 0;
    while (head < most && same(a[head], b[head])) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < most - head && same(a[sizeA - 1 - tail], b[sizeB - 1 - tail])) {
        ++tail;
    }
    return {head, tail};
}

bool SamePhoto(const ImageRecord& a, const ImageRecord& b) {
    return a.FileName == b.FileName && a.Folder == b.Folder;
}

// A step keeps no older size of a photo than the one that the photo on the workspace has.
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

template <class Run>
Run Part(const Run& run, std::size_t from, std::size_t to) {
    return Run(std::next(run.begin(), static_cast<std::ptrdiff_t>(from)),
               std::next(run.begin(), static_cast<std::ptrdiff_t>(to)));
}

template <class Run>
Run Spliced(const Run& run, std::size_t first, std::size_t count, const Run& instead) {
    Run spliced = Part(run, 0, first);
    spliced.insert(spliced.end(), instead.begin(), instead.end());
    const Run rest = Part(run, first + count, run.size());
    spliced.insert(spliced.end(), rest.begin(), rest.end());
    return spliced;
}

}  // namespace

History::Run History::SharedWith(const Run& known, const Images& images) {
    const auto count = static_cast<std::size_t>(images.UpperBound());
    const auto [head, tail] =
        SameEnds(known, known.size(), images.begin(), count,
                 [](const Shared& a, const ImageRecord& b) { return *a == b; });
    QMultiHash<QString, Shared> between;
    for (std::size_t n = head; n < known.size() - tail; ++n) {
        between.insert(SourcePath(*known[n]), known[n]);
    }
    Run run = Part(known, 0, head);
    run.reserve(count);
    for (std::size_t n = head; n < count - tail; ++n) {
        const ImageRecord& image = images(static_cast<int>(n) + 1);
        const QString path = SourcePath(image);
        auto found = between.find(path);
        while (found != between.end() && found.key() == path && **found != image) {
            ++found;
        }
        if (found != between.end() && found.key() == path) {
            run.push_back(*found);
            between.erase(found);  // each line has a record of its own
        } else {
            run.push_back(std::make_shared<const ImageRecord>(image));
        }
    }
    run.insert(run.end(), known.end() - static_cast<std::ptrdiff_t>(tail), known.end());
    return run;
}

History::Step History::Between(const Run& before, const Run& after) {
    const auto [head, tail] = SameEnds(before, before.size(), after, after.size(),
                                       [](const Shared& a, const Shared& b) { return a == b; });
    Step step;
    step.first = head;
    step.before = Part(before, head, before.size() - tail);
    step.after = Part(after, head, after.size() - tail);
    return step;
}

bool History::MovedPhotos(const Run& run) const {
    return !std::ranges::equal(run, known_,
                               [](const Shared& a, const Shared& b) { return SamePhoto(*a, *b); });
}

void History::Note(const QString& name, const Images& images, const StepKey& key,
                   const StepBesides& besides) {
    Run now = SharedWith(known_, images);
    if (now == known_ && !besides.gear) {
        return;
    }
    Run before = std::exchange(known_, std::move(now));
    if (!sealed_ && !key.empty() && !done_.empty() && done_.back().key == key) {
        const Step& last = done_.back();
        before = Spliced(before, last.first, last.after.size(), last.before);
        done_.pop_back();
        known_ = SharedWith(before, images);  // moved there and back: the record that it was
    }
    Step step = Between(before, known_);
    step.name = name;
    step.key = key;
    step.besides = besides;
    sealed_ = false;
    undone_.clear();
    if (step.Lines() > 0 || besides.gear) {
        Push(std::move(step));
    }
}

void History::NoteProject(const QString& name, const Images& images, const QString& project) {
    Step step = Between(known_, SharedWith({}, images));
    step.name = name;
    step.projects = {project_, project};
    known_ = Spliced(known_, step.first, step.before.size(), step.after);
    undone_.clear();
    Push(std::move(step));
    MarkSaved(project);
    if (project.isEmpty()) {
        saved_.clear();
    }
}

void History::Push(Step step) {
    done_.push_back(std::move(step));
    std::size_t lines = 0;
    for (const Step& kept : done_) {
        lines += kept.Lines();
    }
    while (done_.size() > 1 && (done_.size() > mostSteps || lines > mostLines)) {
        lines -= done_.front().Lines();
        done_.pop_front();
    }
}

void History::Absorb(const Images& images) {
    Run now = SharedWith(known_, images);
    if (now.size() != known_.size() || MovedPhotos(now)) {
        Note(StepName(StepKind::Other), images);
        return;
    }
    Replace(Run(known_), now);
}

void History::Replace(const Run& older, const Run& newer) {
    std::unordered_map<const ImageRecord*, Shared> instead;
    for (std::size_t n = 0; n < older.size(); ++n) {
        if (older[n] != newer[n]) {
            instead.emplace(older[n].get(), newer[n]);
            if (!older[n]->SettingsApplied && newer[n]->SettingsApplied) {
                stored_.push_back(newer[n]);
            }
        }
    }
    if (instead.empty()) {
        return;
    }
    const auto replaceIn = [&instead](auto& records) {
        for (Shared& record : records) {
            if (const auto found = instead.find(record.get()); found != instead.end()) {
                record = found->second;
            }
        }
    };
    replaceIn(known_);
    replaceIn(saved_);
    replaceIn(stored_);
    replaceIn(written_);
    const auto replaceInSteps = [&](auto& steps) {
        for (Step& step : steps) {
            replaceIn(step.before);
            replaceIn(step.after);
        }
    };
    replaceInSteps(done_);
    replaceInSteps(undone_);
}

std::optional<Restored> History::Undo(Images& images) {
    if (done_.empty()) {
        return std::nullopt;
    }
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
    const Step step = undone_.back();
    project_ = step.projects ? step.projects->first : project_;
    Restored restored = Apply(step, step.after, step.before, images);
    if (restored.besides.gear) {
        std::swap(restored.besides.gear->from, restored.besides.gear->to);
    }
    return restored;
}

std::optional<Restored> History::Redo(Images& images) {
    if (undone_.empty()) {
        return std::nullopt;
    }
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
    const Step step = done_.back();
    project_ = step.projects ? step.projects->second : project_;
    return Apply(step, step.before, step.after, images);
}

Restored History::Apply(const Step& step, const Run& gone, const Run& come, Images& images) {
    const Run before = std::exchange(known_, Spliced(known_, step.first, gone.size(), come));
    Restored restored;
    restored.besides = step.besides;
    for (std::size_t n = 0; n < come.size(); ++n) {
        if (gone.size() != come.size() || gone[n] != come[n]) {
            restored.changed.push_back(static_cast<int>(step.first + n));
        }
    }
    if (before.size() != known_.size() || MovedPhotos(before)) {
        QMultiHash<QString, int> lines;
        for (std::size_t n = before.size(); n-- > 0;) {  // the last one put in is found first
            lines.insert(SourcePath(*before[n]), static_cast<int>(n));
        }
        restored.origin.emplace();
        for (const Shared& record : known_) {
            const auto found = lines.find(SourcePath(*record));
            restored.origin->push_back(found == lines.end() ? -1 : *found);
            if (found != lines.end()) {
                lines.erase(found);
            }
        }
    }
    Take(restored, images);
    sealed_ = true;
    return restored;
}

// Fills the list from what is known now.
void History::Take(const Restored& restored, Images& images) {
    Images filled;
    for (std::size_t n = 0; n < known_.size(); ++n) {
        const int from = restored.origin ? (*restored.origin)[n] : static_cast<int>(n);
        ImageRecord image = *known_[n];
        if (from >= 0) {
            KeepSize(images(from + 1), image);
        }
        filled.Append(std::move(image));
    }
    images = std::move(filled);
    Absorb(images);
}

bool History::ChangedSinceSaved() const {
    return !std::ranges::equal(known_, saved_,
                               [](const Shared& a, const Shared& b) { return a == b || *a == *b; });
}

void History::MarkWritten(const ImageRecord& image, const QString& file) {
    const auto same = std::ranges::find_if(known_, [&image](const Shared& record) {
        return record->FileName == image.FileName && *record == image;
    });
    written_.insert(file,
                    same != known_.end() ? *same : std::make_shared<const ImageRecord>(image));
}

int History::UnsavedPhotos() const {
    QMultiHash<QString, const ImageRecord*> safe;  // of each file name
    const auto insert = [&safe](const auto& records) {
        for (const Shared& record : records) {
            safe.insert(record->FileName, record.get());
        }
    };
    insert(saved_);
    insert(stored_);
    insert(written_);
    const auto unsaved = [&safe](const Shared& record) {
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
    sealed_ = true;
}

}  // namespace varnel
