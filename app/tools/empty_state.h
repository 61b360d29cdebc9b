// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What to do first, over the two pictures while the list is empty: where photos
// are dropped, buttons that choose some or open the sample, and one line on what follows. It is lit
// while something is dragged over the window. Throws nothing.
#pragma once

#include <QIcon>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include "app/view/window_view.h"

namespace varnel {

class EmptyState : public QWidget {
    Q_OBJECT
  public:
    EmptyState(QMainWindow* window, const WindowParts& parts);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLabel* AddLabel(const char* name, const QString& text);
    void AddButtons();
    void Light(bool lit);

    QMainWindow* window_;
    WindowParts parts_;
    QVBoxLayout* column_;
    QIcon picture_;
    QTimer look_{this};  // fires when the list was filled
    bool lit_ = false;
};

}  // namespace varnel
