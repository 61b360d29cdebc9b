// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The line above the pictures: what the active tool wants, or what the mouse does on the result.
// Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QTimer>
#include <array>

#include "app/view/window_parts.h"
#include "app/workspace/workspace_model.h"

namespace varnel {

class HintTools : public QObject {
    Q_OBJECT
  public:
    // After the tools have their menu entries.
    HintTools(QMainWindow* window, const WindowParts& parts, const WorkspaceModel& model);

  private:
    void Refresh();
    QString Hint() const;

    const WindowParts parts_;
    const WorkspaceModel& model_;
    QAction* level_;
    QAction* circle_;
    QAction* crop_;
    QTimer refresh_{this};  // fires when the input at hand is handled
};

}  // namespace varnel
