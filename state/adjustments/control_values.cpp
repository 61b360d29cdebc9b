// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/control_values.h"

#include <algorithm>
#include <limits>

#include "base/rounding.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr float smallestEffect = 0.1F;  // percent; 0 would divide by zero

// The field of the record that the main window's slider of the effect moves, if it shows one.
std::optional<float ImageRecord::*> EffectField(Projection projection) {
    const ControlUse* const use = UseOf(projection, SliderId::Effect);
    return use != nullptr && use->shown ? EffectReadBy(projection) : std::nullopt;
}

// Numbers beyond every slider's range are limited to the range of int; not-a-number becomes 0.
int WholeNumber(float value) {
    using Limits = std::numeric_limits<int>;
    const double rounded = std::isnan(value) ? 0.0 : Round(static_cast<double>(value));
    return static_cast<int>(std::clamp<double>(rounded, Limits::min(), Limits::max()));
}

}  // namespace

ControlValues ValuesFor(const ImageRecord& image) {
    const Projection projection = ProjectionFromIndex(image.Projection);
    ControlValues values;
    values.projection = static_cast<int>(projection);
    values.inputAov = WholeNumber(image.InputAOV);
    values.outputAov = WholeNumber(image.OutputAOV);
    values.rotateX = WholeNumber(image.RotateX);
    values.rotateY = WholeNumber(image.RotateY);
    values.rotateZ = WholeNumber(image.RotateZ);
    values.translateX = WholeNumber(image.TranslateX);
    values.translateY = WholeNumber(image.TranslateY);
    if (const auto effect = EffectField(projection)) {
        values.effect = WholeNumber(image.**effect);
    }
    return values;
}

void StoreControls(const ControlValues& values, ImageRecord& image) {
    const Projection projection = ProjectionFromIndex(values.projection);
    image.Projection = static_cast<std::int16_t>(projection);
    image.InputAOV = static_cast<float>(values.inputAov);
    image.OutputAOV = static_cast<float>(values.outputAov);
    image.RotateX = static_cast<float>(values.rotateX);
    image.RotateY = static_cast<float>(values.rotateY);
    image.RotateZ = static_cast<float>(values.rotateZ);
    image.TranslateX = static_cast<float>(values.translateX);
    image.TranslateY = static_cast<float>(values.translateY);
    const auto effect = EffectField(projection);
    if (effect && values.effect) {
        image.** effect = std::max(static_cast<float>(*values.effect), smallestEffect);
    }
    image.SettingsApplied = true;
}

}  // namespace varnel
