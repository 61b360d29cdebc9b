// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lines over a picture to compare edges with: a grid of squares and a cross in the middle. Throws
// nothing.
#pragma once

#include "app/picture/picture_overlay.h"

namespace varnel {

class PictureLines : public PictureOverlay {
  public:
    void ShowGrid(bool on) { grid_ = on; }
    void ShowCross(bool on) { cross_ = on; }
    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;

  private:
    bool grid_ = false;
    bool cross_ = false;
};

}  // namespace varnel
