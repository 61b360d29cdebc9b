// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The values of the adjustment controls: the projection, the sliders within its ranges and the
// choices of the preview. The window's controls follow it and note here what the user does with
// them. Throws nothing.
#pragma once

#include <QObject>

#include "remap/projection/projection_info.h"
#include "state/adjustments/slider_table.h"

namespace varnel {

class ControlModel : public QObject {
    Q_OBJECT
  public:
    ControlModel();

    // With an effect for every projection: the one that its slider is set to, shown or not.
    const ControlValues& Values() const { return values_; }
    Projection ChosenProjection() const { return ProjectionFromIndex(values_.projection); }
    bool AutoPreview() const { return autoPreview_; }
    bool Antialiased() const { return antialiased_; }

    // A record's values; without an effect among them its slider stays.
    void Show(const ControlValues& values);
    void Set(SliderId slider, int value);
    // Its ranges hold from then on.
    void ChooseProjection(Projection projection);
    void SetAutoPreview(bool on) { autoPreview_ = on; }
    void SetAntialiased(bool on) { antialiased_ = on; }

  Q_SIGNALS:
    void Shown();
    void ProjectionChosen(varnel::Projection projection);
    void SliderSet(varnel::SliderId slider, int value);

  private:
    void Take(SliderId slider, int value);

    ControlValues values_;
    bool autoPreview_ = true;
    bool antialiased_ = true;
};

}  // namespace varnel
