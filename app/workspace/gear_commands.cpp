// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which gear a photo has and gets: the part of the workspace that minds the gears. Looking at a
// photo gives it none but its own, and the default gear when it never had one.

#include <QScopedValueRollback>

#include "app/workspace/workspace.h"
#include "state/adjustments/gear_assignment.h"
#include "state/editing/gear_redefinition.h"

namespace varnel {

// The number of the gear that brings the record's numbers. One whose gear is not in the table keeps
// what it has.
int Workspace::OwnGear(const ImageRecord& image) const {
    const int own = image.GearName.isEmpty() ? 0 : state_.Gear.Find(image.GearName);
    const bool hasOther = !image.GearName.isEmpty() && HasGearNumbers(image);
    return own > 0 || hasOther ? own : state_.Gear.Default();
}

void Workspace::GiveOwnGear(ImageRecord& image) {
    if (const int gear = OwnGear(image); gear > 0) {
        AssignGear(state_.Gear(gear), image);
    }
}

// Takes the photo's size from its file unless it is known. False when the user gave it up.
bool Workspace::KnowSize(ImageRecord& image) {
    if (image.Width != 0) {
        return true;
    }
    // Events are handled meanwhile; nothing may change the list under the record.
    const QScopedValueRollback busy(busy_, true);
    if (const std::optional<PhotoSize> size = photos_.Size(SourcePath(image))) {
        TakeSize(*size, image);
    }
    return !photos_.GivenUp();
}

// What a click gives a record: its size and, if they are still due, its gear's numbers.
void Workspace::Prepare(ImageRecord& image) {
    if (KnowSize(image)) {
        GiveOwnGear(image);
    }
}

void Workspace::ChooseGear() {
    const int gear = view_.ChosenGear();
    if (Busy() || gear < 1 || gear > state_.Gear.UpperBound()) {
        return;
    }
    for (const int line : view_.SelectedLines()) {
        ImageRecord& image = state_.Images(line + 1);
        if (!KnowSize(image)) {
            break;
        }
        if (image.GearName != state_.Gear(gear).GearName) {
            image.SettingsApplied = false;
        }
        AssignGear(state_.Gear(gear), image);
        ShowInControls(image);
    }
    NoteStep(StepKind::Gear);
    if (Current() != nullptr) {
        ShowInControls(*Current());
    }
    Preview();
}

void Workspace::UseGear(int gear) {
    if (Busy() || Current() == nullptr || gear < 1 || gear > state_.Gear.UpperBound()) {
        return;
    }
    ImageRecord& image = *Current();
    image.SettingsApplied = false;
    AssignGear(state_.Gear(gear), image);
    NoteStep(StepKind::Gear);
    ShowInControls(image);
    Preview();
}

void Workspace::ApplyGear() {
    if (view_.ChosenGear() == 0) {
        return;
    }
    ApplyGearToAll(state_.Images, view_.ChosenGearName());
    NoteStep(StepKind::GearToAll, {.onAllLines = true, .gear = {}});
}

void Workspace::NameGear(const QString& gear) {
    Current()->GearName = gear;
    NoteStep(StepKind::Gear);
    ShowInControls(*Current());
}

void Workspace::FollowGears(const std::vector<GearChange>& changes,
                            const std::function<bool(const QString& gear, int photos)>& agrees) {
    if (changes.empty()) {
        return;
    }
    NoteStep(StepKind::Other);
    std::vector<GearFollowers> followers;
    std::vector<bool> agreed;
    for (const GearChange& change : changes) {
        const GearFollowers& photos = followers.emplace_back(change, state_.Images);
        agreed.push_back(photos.Count() > 0 && agrees(photos.Gear(), photos.Count()));
    }
    for (const GearFollowers& photos : followers) {
        photos.Settle(state_.Images);
    }
    Absorb();
    for (std::size_t n = 0; n < followers.size(); ++n) {
        if (agreed[n]) {
            followers[n].GiveNewNumbers(state_.Images);
        }
    }
    NoteStep(StepKind::GearNumbers, {.onAllLines = true, .gear = {}});
    if (Current() != nullptr) {
        ShowInControls(*Current());
        Preview();
    }
}

}  // namespace varnel
