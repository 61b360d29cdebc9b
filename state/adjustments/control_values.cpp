// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/control_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "base/rounding.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/choice_table.h"

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

#define VARNEL_FIELD(id, control, name)                                  \
    ControlField {                                                       \
        SliderId::id, &ControlValues::control, &ImageRecord::name, #name \
    }
#define VARNEL_PERCENT(id, control, name)                                       \
    ControlField {                                                              \
        SliderId::id, &ControlValues::control, &ImageRecord::name, #name, 100.0 \
    }
constexpr std::array controlFields{
    VARNEL_FIELD(AovInput, inputAov, InputAOV),
    VARNEL_FIELD(AovOutput, outputAov, OutputAOV),
    VARNEL_FIELD(X, rotateX, RotateX),
    VARNEL_FIELD(Y, rotateY, RotateY),
    VARNEL_FIELD(Z, rotateZ, RotateZ),
    VARNEL_FIELD(XTranslate, translateX, TranslateX),
    VARNEL_FIELD(YTranslate, translateY, TranslateY),
    VARNEL_PERCENT(PaniniD, paniniD, PaniniD),
    VARNEL_FIELD(PaniniSqueeze, paniniSqueeze, PaniniSqueeze),
    VARNEL_FIELD(UnrollStart, unrollStart, UnrollStart),
    VARNEL_FIELD(UnrollFrom, unrollFrom, UnrollFrom),
    VARNEL_FIELD(UnrollTo, unrollTo, UnrollTo),
};
#undef VARNEL_FIELD
#undef VARNEL_PERCENT

// What differs from the values that were there before; without them, all.
void Store(const ControlValues& values, const ControlValues* before, ImageRecord& image) {
    const Projection projection = ProjectionFromIndex(values.projection);
    image.Projection = static_cast<std::int16_t>(projection);
    for (const ControlField& field : controlFields) {
        if (before == nullptr || values.*field.control != before->*field.control) {
            image.*field.field = static_cast<float>(values.*field.control / field.factor);
        }
    }
    for (const ChoiceRowData& row : ChoiceRows()) {
        if (before == nullptr || values.Choice(row.id) != before->Choice(row.id)) {
            row.Give(values.Choice(row.id), image);
        }
    }
    const auto effect = EffectField(projection);
    if (effect && values.effect && (before == nullptr || values.effect != before->effect)) {
        image.** effect = std::max(static_cast<float>(*values.effect), smallestEffect);
    }
    image.SettingsApplied = true;
}

}  // namespace

std::span<const ControlField> ControlFields() {
    return controlFields;
}

const ControlField* FieldOf(SliderId id) {
    const auto* const field = std::ranges::find(controlFields, id, &ControlField::id);
    return field == controlFields.end() ? nullptr : field;
}

int WholeNumber(double value) {
    using Limits = std::numeric_limits<int>;
    const double rounded = std::isnan(value) ? 0.0 : Round(value);
    return static_cast<int>(std::clamp<double>(rounded, Limits::min(), Limits::max()));
}

ControlValues Whole(const ControlValues& values) {
    ControlValues whole = values;
    for (const ControlField& field : controlFields) {
        whole.*field.control = WholeNumber(values.*field.control);
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
    for (const ControlField& field : controlFields) {
        values.*field.control = NumberOf(image.*field.field) * field.factor;
    }
    for (const ChoiceRowData& row : ChoiceRows()) {
        values.Choose(row.id, row.Of(image));
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
