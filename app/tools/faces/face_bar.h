// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bar below the pictures while faces are softened: what to do, and buttons that take ellipses
// away. Throws nothing.
#pragma once

#include "app/panels/line_bar.h"

namespace varnel {

class FaceBar : public LineBar {
    Q_OBJECT
  public:
    explicit FaceBar(QWidget* parent);
    void ShowFaces(int count);

  Q_SIGNALS:
    void RemoveWanted();  // the chosen one
    void ClearWanted();   // all
    void LeaveWanted();

  private:
    QPushButton* remove_;
    QPushButton* clear_;
};

}  // namespace varnel
