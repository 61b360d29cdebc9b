// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// "Undo" and "Redo" in the Edit menu, with the names of their steps. Throws nothing but for want of
// memory.
#pragma once

#include <QAction>
#include <QObject>

#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class UndoTools : public QObject {
    Q_OBJECT
  public:
    UndoTools(const WindowParts& parts, const WindowView& view, Workspace& workspace,
              QObject* parent);
    ~UndoTools() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ShowNames();

    Workspace& workspace_;
    QAction* undo_;
    QAction* redo_;
};

}  // namespace varnel
