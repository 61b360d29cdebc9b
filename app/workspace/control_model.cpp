// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/control_model.h"

#include <algorithm>

namespace varnel {

ControlModel::ControlModel() {
    for (const SliderRowData& row : SliderRows()) {
        SetValueOf(row.id, row.start, values_);
    }
    values_.choices = ValuesFor(ImageRecord()).choices;
    filled_ = values_;
}

void ControlModel::Show(const ControlValues& values) {
    ChooseProjection(ProjectionFromIndex(values.projection));
    for (const SliderRowData& row : SliderRows()) {
        if (const std::optional<double> value = ValueOf(row.id, values)) {
            SetValueOf(row.id, *value, values_);
        }
    }
    values_.choices = values.choices;
    filled_ = values_;
    Q_EMIT Shown();
}

void ControlModel::Fill(SliderId slider, double value) {
    SetValueOf(slider, value, values_);
    SetValueOf(slider, value, filled_);
    Q_EMIT SliderSet(slider, value);
}

void ControlModel::Set(SliderId slider, double value) {
    const ControlRange reach = ReachOf(slider, ChosenProjection());
    const auto single = static_cast<float>(std::clamp<double>(value, reach.minimum, reach.maximum));
    SetValueOf(slider, static_cast<double>(single), values_);
    Q_EMIT SliderSet(slider, *ValueOf(slider, values_));
}

void ControlModel::Choose(ChoiceId choice, int value) {
    values_.Choose(choice, value);
    Q_EMIT ChoiceMade(choice, value);
}

void ControlModel::ChooseProjection(Projection projection) {
    if (projection == ChosenProjection()) {
        return;
    }
    const ControlValues before = values_;
    FitTo(projection, values_);
    Q_EMIT ProjectionChosen(projection);
    for (const SliderRowData& row : SliderRows()) {
        if (const auto value = ValueOf(row.id, values_); value != ValueOf(row.id, before)) {
            Q_EMIT SliderSet(row.id, *value);
        }
    }
}

}  // namespace varnel
