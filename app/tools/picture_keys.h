// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The tools over the photo by keyboard: a tool that is switched on gets it, Escape switches the
// tool off again, the image circle from wherever in the window the keyboard is. Throws nothing.
#pragma once

#include <QAction>
#include <QObject>
#include <array>

#include "app/view/window_view.h"

namespace varnel {

class PictureKeys : public QObject {
    Q_OBJECT
  public:
    // After the tools have their menu entries.
    PictureKeys(QWidget* window, const WindowParts& parts);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Leave();

    std::array<QAction*, 2> tools_;
};

}  // namespace varnel
