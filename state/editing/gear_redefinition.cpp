// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/gear_redefinition.h"

#include <algorithm>
#include <utility>

#include "state/adjustments/gear_assignment.h"
#include "state/adjustments/slider_table.h"

namespace varnel {

namespace {

float AngleFor(const GearRecord& gear, const ImageRecord& image) {
    return image.Landscape ? gear.hAOV : gear.vAOV;
}

// What the main window's slider stores for an angle, in degrees.
float SliderAngle(float angle) {
    ImageRecord image;
    image.InputAOV = angle;
    const SliderRowData& row = SliderRowOf(SliderId::AovInput);
    return static_cast<float>(
        std::clamp(WholeNumber(ValuesFor(image).inputAov), row.minimum, row.maximum));
}

bool HasNumbersOf(const GearRecord& gear, const ImageRecord& image) {
    ImageRecord assigned = image;
    return !AssignGear(gear, assigned) || assigned == image;
}

bool BringsNewNumbers(const GearChange& change) {
    GearRecord same = change.from;
    same.GearName = change.to.GearName;
    // Not copied to photos.
    same.LensDataVersion = change.to.LensDataVersion;
    same.LensFieldAngle = change.to.LensFieldAngle;
    same.UserAdjusted = change.to.UserAdjusted;
    same.SetByHand = change.to.SetByHand;
    return same != change.to;
}

void TakeNewNumbers(const GearChange& change, ImageRecord& image) {
    const float angle = AngleFor(change.from, image);
    const bool hasAngle = image.InputAOV == angle || image.InputAOV == SliderAngle(angle);
    CopyGear(change.to, image);
    if (hasAngle) {
        image.InputAOV = AngleFor(change.to, image);
    }
}

}  // namespace

GearFollowers::GearFollowers(GearChange change, const RecordArray<ImageRecord>& images)
    : change_(std::move(change)) {
    const bool brings = BringsNewNumbers(change_);
    for (int n = 1; n <= images.UpperBound(); ++n) {
        if (images(n).GearName != change_.from.GearName) {
            continue;
        }
        if (brings && HasNumbersOf(change_.from, images(n))) {
            users_.push_back({n, static_cast<bool>(images(n).SettingsApplied)});
        } else {
            named_.push_back(n);
        }
    }
}

void GearFollowers::Settle(RecordArray<ImageRecord>& images) const {
    for (const int n : named_) {
        images(n).GearName = change_.to.GearName;
    }
    for (const User& user : users_) {
        images(user.image).SettingsApplied = true;
    }
}

void GearFollowers::GiveNewNumbers(RecordArray<ImageRecord>& images) const {
    for (const auto& [n, wasAdjusted] : users_) {
        if (wasAdjusted) {
            TakeNewNumbers(change_, images(n));
        } else {
            images(n).SettingsApplied = false;
            AssignGear(change_.to, images(n));
        }
    }
}

}  // namespace varnel
