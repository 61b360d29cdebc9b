// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/control_model.h"

#include <algorithm>

namespace varnel {

ControlModel::ControlModel() {
    for (const SliderRowData& row : SliderRows()) {
        SetValueOf(row.id, row.start, values_);
    }
    filled_ = values_;
}

void ControlModel::Take(SliderId slider, double value) {
    const ControlRange reach = ReachOf(slider, ChosenProjection());
    const auto single = static_cast<float>(std::clamp<double>(value, reach.minimum, reach.maximum));
    SetValueOf(slider, static_cast<double>(single), values_);
}

void ControlModel::Show(const ControlValues& values) {
    ChooseProjection(ProjectionFromIndex(values.projection));
    for (const SliderRowData& row : SliderRows()) {
        if (const std::optional<double> value = ValueOf(row.id, values)) {
            SetValueOf(row.id, *value, values_);
        }
    }
    filled_ = values_;
    Q_EMIT Shown();
}

void ControlModel::Fill(SliderId slider, double value) {
    SetValueOf(slider, value, values_);
    SetValueOf(slider, value, filled_);
    Q_EMIT SliderSet(slider, value);
}

void ControlModel::Set(SliderId slider, double value) {
    Take(slider, value);
    Q_EMIT SliderSet(slider, *ValueOf(slider, values_));
}

void ControlModel::ChooseProjection(Projection projection) {
    if (projection == ChosenProjection()) {
        return;
    }
    values_.projection = static_cast<int>(projection);
    for (const SliderRowData& row : SliderRows()) {
        const ControlUse* const use = UseOf(projection, row.id);
        if (use != nullptr && use->range) {
            Take(row.id, *ValueOf(row.id, values_));
        }
    }
    Q_EMIT ProjectionChosen(projection);
}

}  // namespace varnel
