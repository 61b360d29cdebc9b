// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/control_model.h"

#include <algorithm>

namespace varnel {

ControlModel::ControlModel() {
    for (const SliderRowData& row : SliderRows()) {
        SetValueOf(row.id, row.start, values_);
    }
}

void ControlModel::Take(SliderId slider, int value) {
    const ControlRange range = RangeOf(slider, ChosenProjection());
    SetValueOf(slider, std::clamp(value, range.minimum, range.maximum), values_);
}

void ControlModel::Show(const ControlValues& values) {
    ChooseProjection(ProjectionFromIndex(values.projection));
    for (const SliderRowData& row : SliderRows()) {
        if (const std::optional<int> value = ValueOf(row.id, values)) {
            Take(row.id, *value);
        }
    }
    Q_EMIT Shown();
}

void ControlModel::Set(SliderId slider, int value) {
    Take(slider, value);
    Q_EMIT SliderSet(slider, *ValueOf(slider, values_));
}

void ControlModel::ChooseProjection(Projection projection) {
    if (projection == ChosenProjection()) {
        return;
    }
    values_.projection = static_cast<int>(projection);
    for (const SliderRowData& row : SliderRows()) {
        Take(row.id, *ValueOf(row.id, values_));
    }
    Q_EMIT ProjectionChosen(projection);
}

}  // namespace varnel
