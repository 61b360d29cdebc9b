// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The contact sheet's entry in the View menu and what choosing a tile does. Throws nothing but for
// want of memory.
#pragma once

#include <QObject>

#include "app/picture/contact_sheet_box.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class SheetTools : public QObject {
    Q_OBJECT
  public:
    SheetTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
               const WorkingState& state, QObject* parent);
    // Another photo became current.
    void CloseSheet() { box_->hide(); }

  private:
    void Toggle();

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    ContactSheetBox* box_;
};

}  // namespace varnel
