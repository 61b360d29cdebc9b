// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What to do first, over the two pictures while the list is empty and there is a gear: where photos
// are dropped and one line on what follows. It is lit while something is dragged over the window.
// Throws nothing.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "app/view/window_view.h"

namespace varnel {

class EmptyState : public QWidget {
    Q_OBJECT
  public:
    EmptyState(QWidget* window, const WindowParts& parts);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLabel* AddLabel(const char* name, const QString& text);
    void Light(bool lit);

    WindowParts parts_;
    QTimer look_{this};  // fires when the list is filled and the gears are loaded
    bool lit_ = false;
};

}  // namespace varnel
