// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size of the two pictures: it follows the space that the window leaves for them, and the
// settings, which the Setup menu's entry "Defaults" changes. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class PictureSizeTools : public QObject {
    Q_OBJECT
  public:
    PictureSizeTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace, const WorkingState& state, Dialogs& dialogs);

  private:
    void TakeWanted();
    void OnRoomChanged();
    void ChangeDefaults();
    void Redraw();

    QMainWindow* window_;
    PictureArea& pictures_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    Dialogs& dialogs_;
    QTimer roomSettled_{this};
};

}  // namespace varnel
