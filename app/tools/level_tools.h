// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Tools menu's entry "Level the horizon": while it is checked, a line traced along the horizon
// on the photo as shot sets tilt and roll. Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QObject>
#include <QShortcut>

#include "app/picture/stroke_overlay.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "state/editing/level_horizon.h"

namespace varnel {

// The result in a sentence for the status line.
QString LevelText(const Levelling& level);

class LevelTools : public QObject {
    Q_OBJECT
  public:
    LevelTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
               Workspace& workspace, WorkingState& state);

  private:
    bool MayLevel();
    void OnToggled(bool on);
    void Leave() { entry_->setChecked(false); }
    void Level();
    void Store(const Levelling& level);

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    WorkingState& state_;
    QShortcut* leave_;
    StrokeOverlay stroke_;
    QAction* entry_;
};

}  // namespace varnel
