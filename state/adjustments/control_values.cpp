// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/control_values.h"

#include <algorithm>
#include <array>
#include <cmath>
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

double NumberOf(float value) {
    return std::isnan(value) ? 0.0 : static_cast<double>(value);
}

double EffectNumber(float value) {
    return value == smallestEffect ? 0.0 : NumberOf(value);
}

// The controls that are always there, with the fields that they stand for.
struct NumberField {
    double ControlValues::*control;
    float ImageRecord::*field;
};
constexpr std::array numberFields{
    NumberField{&ControlValues::inputAov, &ImageRecord::InputAOV},
    NumberField{&ControlValues::outputAov, &ImageRecord::OutputAOV},
    NumberField{&ControlValues::rotateX, &ImageRecord::RotateX},
    NumberField{&ControlValues::rotateY, &ImageRecord::RotateY},
    NumberField{&ControlValues::rotateZ, &ImageRecord::RotateZ},
    NumberField{&ControlValues::translateX, &ImageRecord::TranslateX},
    NumberField{&ControlValues::translateY, &ImageRecord::TranslateY}};

// What differs from the values that were there before; without them, all.
void Store(const ControlValues& values, const ControlValues* before, ImageRecord& image) {
    const Projection projection = ProjectionFromIndex(values.projection);
    image.Projection = static_cast<std::int16_t>(projection);
    for (const auto& [control, field] : numberFields) {
        if (before == nullptr || values.*control != before->*control) {
            image.*field = static_cast<float>(values.*control);
        }
    }
    const auto effect = EffectField(projection);
    if (effect && values.effect && (before == nullptr || values.effect != before->effect)) {
        image.** effect = std::max(static_cast<float>(*values.effect), smallestEffect);
    }
    image.SettingsApplied = true;
}

}  // namespace

int WholeNumber(double value) {
    using Limits = std::numeric_limits<int>;
    const double rounded = std::isnan(value) ? 0.0 : Round(value);
    return static_cast<int>(std::clamp<double>(rounded, Limits::min(), Limits::max()));
}

ControlValues Whole(const ControlValues& values) {
    ControlValues whole = values;
    for (const NumberField& number : numberFields) {
        whole.*number.control = WholeNumber(values.*number.control);
    }
    if (values.effect) {
        whole.effect = WholeNumber(*values.effect);
    }
    return whole;
}

ControlValues ValuesFor(const ImageRecord& image) {
    const Projection projection = ProjectionFromIndex(image.Projection);
    ControlValues values;
    values.projection = static_cast<int>(projection);
    for (const auto& [control, field] : numberFields) {
        values.*control = NumberOf(image.*field);
    }
    if (const auto effect = EffectField(projection)) {
        values.effect = EffectNumber(image.**effect);
    }
    return values;
}

void StoreControls(const ControlValues& values, ImageRecord& image) {
    Store(values, nullptr, image);
}

void StoreChanged(const ControlValues& values, const ControlValues& filled, ImageRecord& image) {
    Store(values, &filled, image);
}

}  // namespace varnel
