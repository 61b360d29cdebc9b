// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The entries "Straighten" of the Tools menu and "Measure a lens" of the Setup menu. Throws nothing
// but for want of memory.
#pragma once

#include <QObject>

#include "app/straighten/lens_commands.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"

namespace varnel {

class StraightenTools : public QObject {
    Q_OBJECT
  public:
    StraightenTools(QMainWindow* window, WindowView& view, Workspace& workspace,
                    const WorkingState& state, const WindowPorts& ports);

  private:
    void Straighten();
    void Use(const MeasuredLensUse& use);

    QMainWindow* window_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    Dialogs& dialogs_;
    LensCommands commands_;
};

}  // namespace varnel
