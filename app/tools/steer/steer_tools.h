// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Steering the current photo by hand on the converted picture, in projections that turn the camera.
// Throws nothing but for want of memory.
#pragma once

#include <QObject>
#include <QTimer>

#include "app/tools/steer/steer_overlay.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class SteerTools : public QObject, private SteerPort {
    Q_OBJECT
  public:
    // Before the tools that draw over the converted picture: they are asked first.
    SteerTools(const WindowParts& parts, const WindowView& view, Workspace& workspace,
               QObject* parent);

  private:
    bool MaySteer() const override;
    Steered Now() const override;
    void Try(const ImageRecord& image) override;
    void StoreTried(StepKind kind) override;
    void Step(const ImageRecord& image, StepKind kind) override;
    void TakeKeyboard() override;

    void TakeControls(const ImageRecord& image);

    PictureBox* to_;
    const WindowView& view_;
    Workspace& workspace_;
    SteerOverlay overlay_;
    QTimer draw_{this};   // fires when the input at hand is handled: many moves, one preview
    QTimer burst_{this};  // while it runs the same step goes on
};

}  // namespace varnel
