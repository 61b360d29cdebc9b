// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/gear_commands.h"

#include "state/adjustments/gear_assignment.h"
#include "state/editing/gear_redefinition.h"

namespace varnel {

void GearCommands::GiveChosen() {
    const int gear = model_.gears.Number();
    const GearTable& table = model_.state.Gear;
    if (model_.activity.Busy() || gear < 1 || gear > table.UpperBound()) {
        return;
    }
    for (const int line : model_.list.SelectedLines()) {
        ImageRecord& image = model_.list.OnLine(line);
        if (!preparation_.KnowSize(image)) {
            break;
        }
        if (image.GearName != table(gear).GearName) {
            image.SettingsApplied = false;
        }
        AssignGear(table(gear), image);
        model_.ShowInControls(image);
    }
    model_.steps.Note(StepKind::Gear);
    if (const ImageRecord* const image = model_.list.Current()) {
        model_.ShowInControls(*image);
    }
    preview_.Preview();
}

void GearCommands::Use(int gear) {
    ImageRecord* const image = model_.list.Current();
    const GearTable& table = model_.state.Gear;
    if (model_.activity.Busy() || image == nullptr || gear < 1 || gear > table.UpperBound()) {
        return;
    }
    image->SettingsApplied = false;
    AssignGear(table(gear), *image);
    model_.steps.Note(StepKind::Gear);
    model_.ShowInControls(*image);
    preview_.Preview();
}

void GearCommands::ApplyToAll() {
    if (model_.gears.Number() == 0) {
        return;
    }
    ApplyGearToAll(model_.list.Images(), model_.gears.Name());
    model_.steps.Note(StepKind::GearToAll, {.onAllLines = true, .gear = {}});
}

void GearCommands::NameCurrent(const QString& gear) {
    ImageRecord& image = *model_.list.Current();
    image.GearName = gear;
    model_.steps.Note(StepKind::Gear);
    model_.ShowInControls(image);
}

void GearCommands::Refill() {
    model_.gears.Refill();
    if (const ImageRecord* const image = model_.list.Current()) {
        model_.gears.Show(image->GearName);
    }
}

void GearCommands::Follow(const std::vector<GearChange>& changes,
                          const std::function<bool(const QString& gear, int photos)>& agrees) {
    if (changes.empty()) {
        return;
    }
    model_.steps.Note(StepKind::Other);
    RecordArray<ImageRecord>& images = model_.list.Images();
    std::vector<GearFollowers> followers;
    std::vector<bool> agreed;
    for (const GearChange& change : changes) {
        const GearFollowers& photos = followers.emplace_back(change, images);
        agreed.push_back(photos.Count() > 0 && agrees(photos.Gear(), photos.Count()));
    }
    for (const GearFollowers& photos : followers) {
        photos.Settle(images);
    }
    model_.steps.Absorb();
    for (std::size_t n = 0; n < followers.size(); ++n) {
        if (agreed[n]) {
            followers[n].GiveNewNumbers(images);
        }
    }
    model_.steps.Note(StepKind::GearNumbers, {.onAllLines = true, .gear = {}});
    if (const ImageRecord* const image = model_.list.Current()) {
        model_.ShowInControls(*image);
        preview_.Preview();
    }
}

}  // namespace varnel
