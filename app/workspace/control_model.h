// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The values of the adjustment controls: the projection, the numbers of the sliders and the choices
// of the preview. The window's controls follow it and note here what the user does with them. A
// number that no one changed is the record's own, with its fraction and beyond the slider's ends.
// Throws nothing.
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
    // The same for one of them.
    void Fill(SliderId slider, double value);
    // By the user; within the control's reach, in single precision as a record has it.
    void Set(SliderId slider, double value);
    void Choose(ChoiceId choice, int value);
    // Writes what was changed since the controls were filled.
    void StoreInto(ImageRecord& image) const { StoreChanged(values_, filled_, image); }
    // The controls show what is in the records.
    void NoteStored() { filled_ = values_; }
    // Its own ranges hold from then on; what it cannot show gives way.
    void ChooseProjection(Projection projection);
    void SetAutoPreview(bool on) { autoPreview_ = on; }
    void SetAntialiased(bool on) { antialiased_ = on; }

  Q_SIGNALS:
    void Shown();
    void ProjectionChosen(varnel::Projection projection);
    void SliderSet(varnel::SliderId slider, double value);
    void ChoiceMade(varnel::ChoiceId choice, int value);

  private:
    ControlValues values_;
    ControlValues filled_;  // what the controls showed before anything was changed
    bool autoPreview_ = true;
    bool antialiased_ = true;
};

}  // namespace varnel
