// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size of the two working bitmaps: it follows the space that the window leaves for the
// pictures, and the settings, which the Setup menu's entry "Defaults" changes. And the sharp
// pictures that take the drafts' place. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "app/picture/screen_pictures.h"
#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class PictureSizeTools : public QObject {
    Q_OBJECT
  public:
    PictureSizeTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                     Workspace& workspace, WorkingState& state, Dialogs& dialogs);

  private:
    void OnRoomChanged();
    void ChangeDefaults();
    void Redraw();

    QMainWindow* window_;
    PictureArea& pictures_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    Dialogs& dialogs_;
    ScreenPictures sharp_;
    QTimer roomSettled_{this};
};

}  // namespace varnel
