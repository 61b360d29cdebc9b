// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The photographer's workspace as it stands: what the window shows and follows. It uses no widget.
// Throws nothing but for want of memory.
#pragma once

#include "app/workspace/activity.h"
#include "app/workspace/control_model.h"
#include "app/workspace/gear_model.h"
#include "app/workspace/image_selection.h"
#include "app/workspace/list_steps.h"
#include "state/editing/working_state.h"

namespace varnel {

class WorkspaceModel : public QObject {
    Q_OBJECT
  public:
    explicit WorkspaceModel(WorkingState& theState)
        : state(theState), list(state.Images), gears(state.Gear), steps(list) {}

    // The record's gear and values in selector and controls.
    void ShowInControls(const ImageRecord& image);

    WorkingState& state;
    ImageSelection list;
    ControlModel controls;
    GearModel gears;
    ListSteps steps;
    Activity activity;
    bool showsWholeFrame = false;  // the result before its crop, which is being chosen

  Q_SIGNALS:
    // The current photo's record is in the controls.
    void CurrentShown();
    // In a file of that name.
    void PictureSaved(const QString& path);
    // How results are saved may be another way now.
    void SavingChanged();
    // By the user, without settings of their own.
    void PhotosAdded(const QStringList& paths);
};

}  // namespace varnel
