// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frames "Remap" and "Refine equipment parameters": what their sliders and buttons do to the
// selected photos, also by keys. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class AdjustmentTools : public QObject {
    Q_OBJECT
  public:
    AdjustmentTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                    Workspace& workspace, const WorkingState& state);

  private:
    void ConnectButtons();
    void ConnectSliders();
    void AddKeys();
    void OnSliderChanged(SliderRow* row);
    void OnSliderReset(SliderRow* row);
    void UpdateEnabled();

    QMainWindow* window_;
    AdjustmentPanel& panel_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    QTimer livePreview_{this};  // fires when the input at hand is handled: many moves, one preview
};

}  // namespace varnel
