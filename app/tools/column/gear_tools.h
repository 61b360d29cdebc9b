// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gears of the photos: the frame "Equipment", the offer in the status bar and the Setup menu's
// entry "Manage equipment". Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>

#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class GearTools : public QObject {
    Q_OBJECT
  public:
    GearTools(QMainWindow* window, const WindowParts& parts, WindowView& view, Workspace& workspace,
              const WorkingState& state, Dialogs& dialogs);

  private:
    void Manage();
    void TakeOffer();
    void ShowGears();
    void UpdateEnabled();

    QMainWindow* window_;
    EquipmentPanel& panel_;
    GearOfferRow& offer_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    Dialogs& dialogs_;
};

}  // namespace varnel
