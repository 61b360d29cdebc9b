// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One line beside the pictures: a text that wraps, and the buttons behind it. Throws nothing.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace varnel {

class LineBar : public QWidget {
    Q_OBJECT
  public:
    // Names of the objects. It is hidden at first.
    LineBar(const char* name, const char* label, QWidget* parent);

  protected:
    QPushButton* AddButton(const char* name, const QString& text, const QString& tip);
    QLabel& Text() { return *text_; }

  private:
    QLabel* text_;
};

}  // namespace varnel
