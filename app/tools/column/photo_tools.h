// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The photos of the list: adding them with the dialog, removing them, and loading the one whose
// line becomes current or is clicked. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>

#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class PhotoTools : public QObject {
    Q_OBJECT
  public:
    PhotoTools(QMainWindow* window, const WindowParts& parts, Workspace& workspace,
               const WorkingState& state, Dialogs& dialogs);

  private:
    void AddRemoveEntry(QMenu* menu);
    void OnLine(int line);
    void OnLineClicked();
    void AddImages();
    void RemoveImages();
    void PickPoint(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void UpdateEnabled();

    QMainWindow* window_;
    ImageListPanel& panel_;
    Workspace& workspace_;
    const WorkingState& state_;
    Dialogs& dialogs_;
    QAction* remove_ = nullptr;
    bool changedByPress_ = false;  // the current line, by the mouse button that is down
};

}  // namespace varnel
