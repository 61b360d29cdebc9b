// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/store/gear_entry.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"

namespace varnel {

namespace {

constexpr double farthest = 32767.0;  // beyond any gear; keeps a damaged setting within a slider

}  // namespace

SliderRange Widened(SliderRange range, int value) {
    return {std::min(range.minimum, value), std::max(range.maximum, value)};
}

int SliderPosition(float value) {
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(std::clamp(Round(static_cast<double>(value)), -farthest, farthest));
}

void SetNumber(float GearRecord::*number, double value, GearRecord& gear) {
    gear.UserAdjusted = true;
    gear.SetByHand = true;
    gear.*number = static_cast<float>(value);
    if (number == &GearRecord::hAOV) {
        gear.vAOV = gear.hAOV;
    }
}

void SetLensNumbers(float scale, float factor, GearRecord& gear) {
    gear.UserAdjusted = true;
    gear.SetByHand = true;
    gear.Own.LensMapScale = gear.LensMapScale = scale;
    gear.Own.LensMapFactor = gear.LensMapFactor = factor;
    GearRecord filled = gear;
    FillGearFromCatalogue(NamesOf(gear), filled);
    gear.hAOV = filled.hAOV;
    gear.vAOV = filled.vAOV;
}

void DefineEditedGear(GearTable& table, const GearEntry& entry) {
    const bool named = !entry.typedName.trimmed().isEmpty();
    const QString name = named ? entry.typedName : BuiltGearName(entry.names);
    GearRecord& gear = table(0);
    const GearRecord before = gear;
    gear.GearName = entry.isNew ? UniqueGearName(table, name) : name;
    FillGearFromCatalogue(entry.names, gear, {before.GearRatio, before.OfsetX, before.OfsetY});
    if (gear.UserAdjusted) {
        gear.hAOV = before.hAOV;
        gear.vAOV = before.vAOV;
    }
}

void TakeKnown(const GearRecord& known, GearRecord& gear) {
    gear.Lens = known.Lens;
    FillGearFromCatalogue(NamesOf(known), gear);
    if (known.GearRatio > 0.0F) {
        gear.GearRatio = known.GearRatio;
        gear.OfsetX = known.OfsetX;
        gear.OfsetY = known.OfsetY;
    }
    const bool isRounded = known.hAOV == static_cast<float>(SliderPosition(gear.hAOV));
    if (known.hAOV > 0.0F && known.hAOV != gear.hAOV && !isRounded) {
        gear.hAOV = gear.vAOV = known.hAOV;
    }
    gear.SetByHand = HasOwnCircle(gear) || HasOwnAngle(gear);
    gear.UserAdjusted = gear.SetByHand;
}

void DropAdjustments(GearRecord& gear) {
    gear.UserAdjusted = false;
    gear.SetByHand = false;
    gear.Own = {};
    gear.OfsetX = 0.0F;
    gear.OfsetY = 0.0F;
}

}  // namespace varnel
