// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The dots beside the sliders and "Reset photo", in the panel and in the Edit menu. Throws nothing
// but for want of memory.
#pragma once

#include <QAction>
#include <QObject>
#include <QTimer>

#include "app/view/window_view.h"
#include "app/workspace/gears/reset_commands.h"

namespace varnel {

class ResetTools : public QObject {
    Q_OBJECT
  public:
    ResetTools(const WindowParts& parts, const WindowView& view, Workspace& workspace,
               QObject* parent);

  private:
    void Refresh();

    const WindowView& view_;
    ResetCommands commands_;
    AdjustmentPanel& panel_;
    QAction* entry_;
    QTimer refresh_{this};  // fires when the change at hand is done
};

}  // namespace varnel
