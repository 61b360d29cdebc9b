// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The context menus of the two pictures: what the menus of the window have for a photo, where the
// hand is, and the photo's folder. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QMenu>

#include "app/view/dialogs.h"
#include "app/view/window_view.h"

namespace varnel {

class PictureMenus : public QObject {
    Q_OBJECT
  public:
    PictureMenus(QMainWindow* window, const WindowParts& parts, const WindowView& view,
                 const ImageSelection& list, Dialogs& dialogs);

  private:
    void Open(PictureBox* box, QPoint place);
    void Fill(QMenu& menu, PictureBox* box);
    void ShowActualSize(PictureBox* box, QPointF place);

    QMainWindow* window_;
    PictureBox* result_;
    const WindowView& view_;
    const ImageSelection& list_;
    Dialogs& dialogs_;
    QPointF place_;  // of the hand on the box, while a menu is open
};

}  // namespace varnel
