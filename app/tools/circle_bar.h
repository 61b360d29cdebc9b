// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bar below the pictures while the image circle is shown: the numbers that fit it, and, instead
// of them, a question before the gear is changed. Throws nothing.
#pragma once

#include "app/panels/line_bar.h"

namespace varnel {

class CircleBar : public LineBar {
    Q_OBJECT
  public:
    explicit CircleBar(QWidget* parent);
    // mayTake: the circle is another one than the gear's.
    void ShowNumbers(const QString& text, bool mayFind, bool mayTake);
    void Ask(const QString& question);

  Q_SIGNALS:
    void FindWanted();
    void TakeWanted();
    void ResetWanted();  // the gear's own circle again
    void Agreed();
    void Declined();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QPushButton* Add(const char* name, const QString& text, const QString& tip,
                     void (CircleBar::*signal)());
    void ShowQuestion(bool asked);

    QPushButton* find_;
    QPushButton* reset_;
    QPushButton* take_;
    QPushButton* agree_;
    QPushButton* decline_;
};

}  // namespace varnel
